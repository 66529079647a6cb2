#!/usr/bin/env bash
# Start to exit of the sample host against a bare Qt window, each measured as a whole process
# (exec to exit), RUNS times (default 11) after one warm-up run each, and the ratio of the medians.
#   ostrel-host --no-start-nag --quit-after=0     the host's start, its first event loop turn, its quit
#   bare window                                   QApplication + QMainWindow with a menu, shown, quit
# Both draw offscreen without a display. The host runs with a home of its own, so that the user's
# settings and log are not touched, below TMPDIR: every settings write of the host is synced to
# disk, so on a busy disk the host's share is mostly waiting for it (TMPDIR=/dev/shm leaves the disk
# out). Needs a build (BUILD_DIR, default build/).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
runs=${RUNS:-11}
host="$build/bin/ostrel-host"
[ -x "$host" ] || { echo "startexit: $host missing; build first (scripts/build.sh)" >&2; exit 2; }
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}; fi

bare="$build/bin/startexit-bare"
if [ ! -x "$bare" ] || [ "$root/scripts/startexit_bare.cpp" -nt "$bare" ]; then
  # shellcheck disable=SC2046 # pkg-config gives several words
  g++ -O2 -fPIC -o "$bare" "$root/scripts/startexit_bare.cpp" $(pkg-config --cflags --libs Qt5Widgets)
fi

home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -m 700 "$home/run"
run_host() {
  HOME=$home XDG_DATA_HOME=$home/data XDG_CONFIG_HOME=$home/config XDG_CACHE_HOME=$home/cache \
    XDG_RUNTIME_DIR=$home/run "$host" --no-start-nag --quit-after=0 >/dev/null 2>&1
}
run_bare() { "$bare" >/dev/null 2>&1; }

# Prints the median wall time, in ms, of `runs` runs of the function $1.
median_ms() {
  local times=() start end
  "$1" # warm-up: first-run files, the disk cache
  for ((i = 0; i < runs; i++)); do
    start=$(date +%s%N)
    "$1"
    end=$(date +%s%N)
    times+=($(((end - start) / 1000)))
  done
  printf '%s\n' "${times[@]}" | sort -n | awk '{ t[NR] = $1 } END { m = (NR % 2) ? t[(NR + 1) / 2] : (t[NR / 2] + t[NR / 2 + 1]) / 2; printf "%.1f", m / 1000 }'
}

host_ms=$(median_ms run_host)
bare_ms=$(median_ms run_bare)
echo "runs: $runs each (median, start to exit of the whole process)"
echo "ostrel-host --no-start-nag --quit-after=0: $host_ms ms"
echo "bare Qt window with a menu:                $bare_ms ms"
awk -v h="$host_ms" -v b="$bare_ms" 'BEGIN { printf "ratio: %.2f (limit 4)\n", h / b }'
