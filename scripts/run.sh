#!/usr/bin/env bash
# The sample host's main job: start the shell, show the main window, run the start, quit.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
"$root/scripts/build.sh"
# Without a display the host still runs: Qt draws offscreen.
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}; fi
# The nags' fingerprints are published from Qt Quick's software renderer; a GPU draws text from
# distance fields, a few bits away. With a display too, the walk's pictures and hashes are those.
export QT_QUICK_BACKEND=${QT_QUICK_BACKEND:-software}
# The main job uses the built-in test harness: it shoots every sample nag in every installed locale
# and dumps the URLs of every locale into build/harness/, then quits by itself 1.5 s after the walk.
exec "$build/bin/ostrel-host" --quit-after=1500 --no-start-nag \
  --test-nag-screens= --test-nag-screens-dir="$build/harness" --test-show-nag-delay=200 --test-dump-urls "$@"
