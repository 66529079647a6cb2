#!/usr/bin/python3
"""Reads the sample host's windows as a screen reader reads them, over AT-SPI: waits for the host (by
process id) on the desktop, reads and answers its first-start question, waits for its welcome nag,
prints the host's accessibility tree and the windows its menus open, and fails when a control has
no name, when the nag is not a named dialog with named buttons and a link, or when the main
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


# The library keeps what it learnt of the desktop's applications at its first look: each look for
# the host is a process of its own ("wait" only tells whether the host is there yet). Within the
# host, new windows show up to the same process.
app = find_app()
if len(sys.argv) > 2 and sys.argv[2] == "wait":
    sys.exit(0 if app is not None else 3)
if app is None:
    print(f"a11y: process {PID} is not on the accessibility bus, which holds:")
    for other in children(pyatspi.Registry.getDesktop(0)):
        print(f"  {other.name!r} (process {other.get_process_id()})")
    sys.exit(1)

problems = []


def named_control(node):
    role = node.getRole()
    if role == pyatspi.ROLE_TEXT:  # Qt's role for a field one types into
        return node.getState().contains(pyatspi.STATE_EDITABLE)
    return role in CONTROLS


def check(nodes):
    for depth, node in nodes:
        role = node.getRoleName()
        name = node.name or ""
        mark = ""
        if named_control(node) and not name.strip():
            mark = "   <-- NO NAME"
            problems.append(f"a {role} without a name")
        print(f"{'  ' * depth}[{role}] {name!r}{mark}")


def wait_for(find, seconds):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        found = find()
        if found:
            return found
        time.sleep(0.2)
    return None


def check_window(window):
    print(f"== window {window.name!r}")
    check(walk(window))
    if not (window.name or "").strip():
        problems.append(f"a {window.getRoleName()} without a name")


def question():
    for window in children(app):
        if window.getRole() in (pyatspi.ROLE_ALERT, pyatspi.ROLE_DIALOG) and nag_dialog_in(window) is None:
            return window
    return None


def nag_dialog_in(node):
    if node.getRole() == pyatspi.ROLE_DIALOG and any(n.getRole() == pyatspi.ROLE_LINK for _, n in walk(node)):
        return node
    return None


def nag_dialog():
    for window in children(app):
        for _, node in walk(window):
            if nag_dialog_in(node) is not None:
                return node
    return None


# A modal window opened by an action holds back the action's answer until it closes; nothing here
# needs the answer.
Atspi.set_timeout(1000, -1)


def press(node):
    try:
        node.queryAction().doAction(0)
    except Exception:  # the answer held back by a modal window
        pass


# The first start asks its question before anything else, the welcome nag waits for the answer:
# it is read and answered as a screen reader user would.
asked = wait_for(question, 15)
if asked is not None:
    check_window(asked)
    buttons = [n for _, n in walk(asked) if n.getRole() == pyatspi.ROLE_PUSH_BUTTON]
    if buttons:
        press(buttons[-1])

dialog = wait_for(nag_dialog, 20)
nodes = walk(app)
print("== the host")
check(nodes)
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
opened = 0
for item in items:
    if item.getRole() == pyatspi.ROLE_MENU_ITEM and (item.name or "").endswith("...") and item.queryAction().nActions:
        print(f"== opens {item.name}")
        press(item)
        opened += 1


def new_windows():
    found = [w for w in children(app) if (w.getRoleName(), w.name) not in before]
    return found if len(found) >= opened else None


for window in wait_for(new_windows, 10) or []:
    check_window(window)
if opened and not new_windows():
    problems.append(f"{opened} menu entries opened fewer windows")

for problem in problems:
    print("a11y: " + problem)
sys.exit(1 if problems else 0)
