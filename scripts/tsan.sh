#!/usr/bin/env bash
# The ThreadSanitizer pass: only the tests of the parts that use threads, built with
# -DOSTREL_SANITIZE=thread into BUILD_DIR (default build-tsan/) and run with the suppressions of
# .ci/tsan.supp. Any report left after the suppressions fails the run.
#
#   kernel_context     the context's observer lists and ComponentSetter
#   extensions_tyfi    the thank-you waiter's thread
#   extensions_email   the e-mail sender's callback
#   nag_weburl         the nag id locks
#   nag_ipc            the local socket protocol
#   nag_onrequest      nags shown on a request over the socket
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build-tsan}
tests=(kernel_context extensions_tyfi extensions_email nag_weburl nag_ipc nag_onrequest)

"$root/scripts/bootstrap.sh"
generator=()
[ -f "$build/CMakeCache.txt" ] || generator=(-G Ninja)
# -O1 keeps the instrumented tests quick without losing the frames of the reports.
cmake -S "$root" -B "$build" "${generator[@]}" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=-O1 \
  -DOSTREL_SANITIZE=thread -DOSTREL_BUILD_BENCHMARKS=OFF >/dev/null
# Only the tests (and the helpers they depend on), not the whole tree.
cmake --build "$build" --parallel "$(nproc)" --target "${tests[@]}"

# Qt and GLib are not instrumented: their own accesses are left out (see .ci/tsan.supp), ours are
# all checked.
export TSAN_OPTIONS="suppressions=$root/.ci/tsan.supp:ignore_noninstrumented_modules=1:second_deadlock_stack=1:history_size=4:exitcode=66"
cd "$build"
regex="^($(IFS='|'; echo "${tests[*]}"))\$"
ctest --output-on-failure --timeout 600 -j "$(nproc)" -R "$regex"
