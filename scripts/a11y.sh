#!/usr/bin/env bash
# What a screen reader (Orca, through AT-SPI) finds in the sample host: the host on Xvfb with a
# session bus and the desktop's accessibility registry, its start nag shown; scripts/a11y.py
# prints the host's accessibility tree and fails on a control without a name, a nag that is not a
# named dialog with its buttons and link, or missing menus.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}

if [ -z "${OSTREL_A11Y_SESSION:-}" ]; then
  # The host alone: CI's earlier stages built the rest of the tree.
  "$root/scripts/bootstrap.sh"
  [ -f "$build/CMakeCache.txt" ] || cmake -S "$root" -B "$build" -G Ninja >/dev/null
  cmake --build "$build" --target ostrel-host >/dev/null
  for tool in xvfb-run dbus-run-session /usr/libexec/at-spi-bus-launcher; do
    command -v "$tool" >/dev/null || { echo "a11y: $tool not found: run scripts/bootstrap.sh" >&2; exit 1; }
  done
  /usr/bin/python3 -c 'import pyatspi' 2>/dev/null ||
    { echo "a11y: python3-pyatspi not found: run scripts/bootstrap.sh" >&2; exit 1; }
  # -noreset: an X server with no client left starts afresh and forgets its root window's
  # properties, among them the accessibility bus address the bus launcher leaves there (see below).
  exec xvfb-run -a -s '-noreset -screen 0 1280x800x24' \
    dbus-run-session -- env OSTREL_A11Y_SESSION=1 BUILD_DIR="$build" bash "$0" "$@"
fi

# A private home, so that the host meets no other host's settings, lock or socket.
scratch=$(mktemp -d)
trap 'kill $host 2>/dev/null || true; rm -rf "$scratch"' EXIT
mkdir -m 0700 "$scratch/run"
export HOME=$scratch XDG_RUNTIME_DIR=$scratch/run XDG_CONFIG_HOME=$scratch/config
unset NO_AT_BRIDGE

# The accessibility bus and its registry, started by D-Bus activation as on a desktop, and up
# before the host starts. Qt 5.15 must find the bus address in the root window's AT_SPI_BUS
# property, which the bus launcher writes: asked on the session bus instead, Qt answers later than
# its bridge registers the application, which then never reaches the registry (and is never
# retried). So the launcher needs DISPLAY, and the property must be there before the host starts.
dbus-update-activation-environment HOME XDG_RUNTIME_DIR XDG_CONFIG_HOME DISPLAY
dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress >/dev/null
xprop -root AT_SPI_BUS | grep -q '= "unix:' ||
  { echo "a11y: the bus launcher left no AT_SPI_BUS on the root window" >&2; exit 1; }
/usr/bin/python3 -c 'import pyatspi; pyatspi.Registry.getDesktop(0).childCount'
export GTK_MODULES=  # nothing of the machine's desktop
QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1 QT_QPA_PLATFORM=xcb QT_QUICK_BACKEND=software \
  "$build/bin/ostrel-host" --start-nag-delay=500 >"$scratch/host.log" 2>&1 &
host=$!
status=0
for _ in $(seq 60); do
  /usr/bin/python3 "$root/scripts/a11y.py" "$host" wait && break
  [ $? -eq 3 ] || break  # not "not yet": the reader itself failed, and says so below
  sleep 0.5
done
/usr/bin/python3 "$root/scripts/a11y.py" "$host" || status=$?
[ "$status" -eq 0 ] || { echo "== the host's output"; tail -n 40 "$scratch/host.log"; }
exit "$status"
