#!/usr/bin/env bash
# Builds and runs the whole test suite with CTest; exits non-zero on any failure.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
"$root/scripts/build.sh" "$@"
cd "$build"
ctest --output-on-failure --timeout 300 -j "$(nproc)"
