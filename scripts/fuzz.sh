#!/usr/bin/env bash
# Builds the libFuzzer targets of fuzz/ with clang in a build folder of their own (the whole tree
# instrumented for coverage, AddressSanitizer and UndefinedBehaviorSanitizer) and runs each
# target for a short while on a copy of its committed seeds, fuzz/corpus/<name>. Any crash,
# sanitizer report or hang fails the run; the input that caused it lands in the build folder.
#
#   FUZZ_SECONDS   seconds per target (default 30)
#   FUZZ_BUILD_DIR build folder (default <repo>/build-fuzz)
set -uo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${FUZZ_BUILD_DIR:-$root/build-fuzz}
seconds=${FUZZ_SECONDS:-30}

set -e
CC=clang-14 CXX=clang++-14 cmake -S "$root" -B "$build" -G Ninja \
  -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DOSTREL_SANITIZE=ON \
  -DCMAKE_CXX_FLAGS=-fsanitize=fuzzer-no-link \
  -DBUILD_TESTING=OFF -DOSTREL_BUILD_BENCHMARKS=OFF >/dev/null

targets=()
for source in "$root"/fuzz/fuzz_*.cpp; do
  targets+=("$(basename "$source" .cpp)")
done
cmake --build "$build" --target "${targets[@]}"
set +e

export QT_QPA_PLATFORM=offscreen
# Leak checks stay with the sanitizer test run: Qt's process-wide caches, filled by the targets'
# one QApplication, read as leaks at the end of a fuzzing run.
export ASAN_OPTIONS="abort_on_error=1:detect_leaks=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

failed=()
for target in "${targets[@]}"; do
  name=${target#fuzz_}
  seeds="$root/fuzz/corpus/$name"
  work="$build/fuzz-corpus/$name"
  artifacts="$build/fuzz-artifacts"
  mkdir -p "$work" "$artifacts"
  [ -d "$seeds" ] && cp -n "$seeds"/* "$work"/ 2>/dev/null
  echo "== fuzz $target for ${seconds}s"
  if ! "$build/bin/$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=4096 -print_final_stats=1 \
       -artifact_prefix="$artifacts/$target-" "$work" 2>"$build/$target.log"; then
    tail -n 60 "$build/$target.log" >&2
    failed+=("$target")
  else
    grep -E '^(Done|stat::number_of_executed_units)' "$build/$target.log" || true
  fi
done

if [ ${#failed[@]} -gt 0 ]; then
  echo "fuzz: failed: ${failed[*]} (inputs in $build/fuzz-artifacts)" >&2
  exit 1
fi
echo "fuzz: all targets ran clean"
