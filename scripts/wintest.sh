#!/usr/bin/env bash
# The Windows test program: the Win32 cores of the Windows seams (the *Core_win.cpp files, and the
# gesture calls, which are Win32 only already) built by Debian's MinGW-w64 cross compiler against
# Debian's doctest, and run under Wine in a private prefix made here and removed afterwards, on a
# private X display unless one is given (the window cases need one). Prints one line per case and
# how long each step took; exits non-zero when the program does not build or a case fails.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cxx=${MINGW_CXX:-x86_64-w64-mingw32-g++-posix}
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
wineserver=$(command -v wineserver || echo /usr/lib/wine/wineserver)

command -v "$cxx" >/dev/null || { echo "wintest: $cxx not found: run scripts/bootstrap.sh" >&2; exit 1; }
[ -x "$wine" ] || { echo "wintest: wine64 not found: run scripts/bootstrap.sh" >&2; exit 1; }
[ -f /usr/include/doctest/doctest.h ] || { echo "wintest: doctest not found: run scripts/bootstrap.sh" >&2; exit 1; }
# Wine's desktop takes the display its first process finds: the whole run goes on one X server.
if [ -z "${DISPLAY:-}" ]; then
  command -v xvfb-run >/dev/null || { echo "wintest: xvfb-run not found: run scripts/bootstrap.sh" >&2; exit 1; }
  exec xvfb-run -a -s '-screen 0 1024x768x24' bash "$0" "$@"
fi

work=$(mktemp -d)
# Without .NET and the HTML engine, Wine never offers to download them while it makes the prefix.
export WINEPREFIX=$work/prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
cleanup() {
  "$wineserver" -k 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# The cores are built into the program, not exported from a library: the export macros are empty.
mkdir -p "$work/include/Foundation" "$work/include/App/Application"
echo '#define OSTREL_FOUNDATION_EXPORT' >"$work/include/Foundation/ostrel_foundation_export.h"
echo '#define OSTREL_APP_EXPORT' >"$work/include/App/Application/ostrel_app_export.h"
# doctest alone from /usr/include: the Linux C library's headers there would shadow MinGW's own.
ln -s /usr/include/doctest "$work/include/doctest"

start=$SECONDS
sources=(wintests/WinCoresTest.cpp src/App/Application/Gesture/IPlatformApi.cpp
         src/App/Application/Gesture/IPlatformApi_win.cpp)
while IFS= read -r core; do sources+=("$core"); done < <(cd "$root" && git ls-files '*Core_win.cpp' 2>/dev/null ||
  find src -name '*Core_win.cpp' | sort)
(cd "$root" && "$cxx" -std=c++17 -O1 -Wall -Wextra -static -municode -DUNICODE -D_UNICODE \
  -I"$root/src" -I"$work/include" "${sources[@]}" -lpsapi -ladvapi32 -luser32 -o "$work/wincores.exe")
echo "wintest: built ${#sources[@]} files in $((SECONDS - start)) s"

start=$SECONDS
"$wine" wineboot -i >/dev/null 2>&1
echo "wintest: Wine prefix made in $((SECONDS - start)) s"

start=$SECONDS
status=0
# The child processes the cases start are this program too: every wait in it is bounded.
timeout 300 "$wine" "$work/wincores.exe" --no-intro=true "$@" || status=$?
echo "wintest: run in $((SECONDS - start)) s"
exit $status
