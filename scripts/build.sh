#!/usr/bin/env bash
# Configures and builds into BUILD_DIR (default: build/) after making sure the packages are there.
# Extra arguments go to CMake's configure step.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
"$root/scripts/bootstrap.sh"
generator=()
[ -f "$build/CMakeCache.txt" ] || generator=(-G Ninja)
cmake -S "$root" -B "$build" "${generator[@]}" -DCMAKE_BUILD_TYPE=${BUILD_TYPE:-RelWithDebInfo} "$@" >/dev/null
cmake --build "$build" --parallel "$(nproc)"
