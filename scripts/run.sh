#!/usr/bin/env bash
# The sample host's main job: start the shell, show the main window, run the start, quit.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
"$root/scripts/build.sh"
# Without a display the host still runs: Qt draws offscreen.
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}; fi
exec "$build/bin/ostrel-host" --quit-after=1500 "$@"
