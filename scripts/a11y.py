#!/usr/bin/python3
"""Reads the sample host's windows as a screen reader reads them, over AT-SPI: waits for the host (by
process id) and its nag to appear on the desktop, prints the host's accessibility tree, and fails when a control
has no name, when the nag is not a named dialog with named buttons and a link, or when the main
window's menus are missing."""
import sys
import time

import pyatspi
from gi.repository import Atspi

PID = int(sys.argv[1])

# What a user presses or types into: each must tell its name.
CONTROLS = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_LINK, pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_ITEM,
    pyatspi.ROLE_CHECK_MENU_ITEM, pyatspi.ROLE_RADIO_MENU_ITEM, pyatspi.ROLE_PAGE_TAB,
    pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_SLIDER, pyatspi.ROLE_ENTRY, pyatspi.ROLE_LIST_ITEM,
}


def children(node):
    for i in range(node.childCount):
        try:
            child = node.getChildAtIndex(i)
        except Exception:  # a node gone while walking
            child = None
        if child is not None:
            yield child


def walk(node, depth=0, out=None):
    out = [] if out is None else out
    out.append((depth, node))
    for child in children(node):
        walk(child, depth + 1, out)
    return out


def find_app():
    for app in children(pyatspi.Registry.getDesktop(0)):
        try:
            if app.get_process_id() == PID:
                return app
        except Exception:  # an application that left meanwhile
            pass
    return None


def nag_dialog(app):
    for _, node in walk(app):
        if node.getRole() == pyatspi.ROLE_DIALOG and any(
                n.getRole() == pyatspi.ROLE_LINK for _, n in walk(node)):
            return node
    return None


# The library keeps what it learnt of the desktop at its first look: each look for the host is a
# process of its own ("wait" only tells whether the host and its nag are there yet).
app = find_app()
if len(sys.argv) > 2 and sys.argv[2] == "wait":
    sys.exit(0 if app is not None and nag_dialog(app) is not None else 3)
if app is None:
    print(f"a11y: process {PID} is not on the accessibility bus, which holds:")
    for other in children(pyatspi.Registry.getDesktop(0)):
        print(f"  {other.name!r} (process {other.get_process_id()})")
    sys.exit(1)

problems = []


def check(nodes):
    for depth, node in nodes:
        role = node.getRoleName()
        name = node.name or ""
        mark = ""
        if node.getRole() in CONTROLS and not name.strip():
            mark = "   <-- NO NAME"
            problems.append(f"a {role} without a name")
        print(f"{'  ' * depth}[{role}] {name!r}{mark}")


nodes = walk(app)
check(nodes)

dialog = nag_dialog(app)
if dialog is None:
    problems.append("no nag dialog with a link")
else:
    buttons = [n for _, n in walk(dialog) if n.getRole() == pyatspi.ROLE_PUSH_BUTTON]
    if not dialog.name:
        problems.append("the nag's dialog has no name")
    if len(buttons) < 3:
        problems.append(f"the nag shows {len(buttons)} buttons")
menus = [n for _, n in nodes if n.getRole() == pyatspi.ROLE_MENU_BAR]
items = [n for m in menus for _, n in walk(m) if n.getRole() in (pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_ITEM)]
if len(items) < 5:
    problems.append(f"the main window's menu bar shows {len(items)} menus and items")

# The host's other windows, each opened from its menu entry ("...") as a screen reader user would.
before = {(n.getRoleName(), n.name) for n in children(app)}
# A modal window opened by an action holds back the action's answer until it closes.
Atspi.set_timeout(5000, -1)
for item in items:
    if item.getRole() == pyatspi.ROLE_MENU_ITEM and (item.name or "").endswith("..."):
        action = item.queryAction()
        if action.nActions > 0:
            print(f"== {item.name}")
            try:
                action.doAction(0)
            except Exception:  # a modal window answers only once it closes; it is open meanwhile
                pass
            time.sleep(1.5)
for window in children(app):
    if (window.getRoleName(), window.name) not in before:
        print(f"== window {window.name!r}")
        check(walk(window))
        if not (window.name or "").strip():
            problems.append(f"a {window.getRoleName()} without a name")

for problem in problems:
    print("a11y: " + problem)
sys.exit(1 if problems else 0)
