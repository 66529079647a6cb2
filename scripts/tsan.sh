#!/usr/bin/env bash
# The ThreadSanitizer pass: only the tests of the parts that use threads, built with
# -DOSTREL_SANITIZE=thread into BUILD_DIR (default build-tsan/) and run with the suppressions of
# .ci/tsan.supp. Any report left after the suppressions fails the run.
#
#   kernel_context     the context's observer lists and ComponentSetter
#   extensions_tyfi    the thank-you waiter's thread
#   extensions_email   the e-mail sender's callback
#   nag_weburl         the nag id locks: only its functions that use them (see below)
#   nag_ipc            the local socket protocol
#   nag_onrequest      nags shown on a request over the socket
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build-tsan}
tests=(kernel_context extensions_tyfi extensions_email nag_ipc nag_onrequest)
locks_test=nag_weburl
locks_functions=(wholeUrl theContextTakesTheCurrentLocale nothingSwitchedOffNorLocked lockStorage)

"$root/scripts/bootstrap.sh"
generator=()
[ -f "$build/CMakeCache.txt" ] || generator=(-G Ninja)
# -O1 keeps the instrumented tests quick without losing the frames of the reports.
cmake -S "$root" -B "$build" "${generator[@]}" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=-O1 \
  -DOSTREL_SANITIZE=thread -DOSTREL_BUILD_BENCHMARKS=OFF >/dev/null
# Only the tests (and the helpers they depend on), not the whole tree.
cmake --build "$build" --parallel "$(nproc)" --target "${tests[@]}" "$locks_test"

export TSAN_OPTIONS="suppressions=$root/.ci/tsan.supp:second_deadlock_stack=1:history_size=4:exitcode=66"
cd "$build"
regex="^($(IFS='|'; echo "${tests[*]}"))\$"
status=0
ctest --output-on-failure --timeout 600 -j "$(nproc)" -R "$regex" || status=1

# The nag id lock tests, run by name: the same executable's web nag test loads QML over HTTP, and
# the QML loader thread and the network thread then race inside Qt with no named frame that a
# suppression could match. The test sets up its own headless process, as under CTest.
echo "tsan: $locks_test ${locks_functions[*]}"
"$build/bin/$locks_test" "${locks_functions[@]}" || status=1
exit $status
