#!/usr/bin/env bash
# The Windows check: every *_win.cpp of the tree named in its CMake list, and compiled with
# -fsyntax-only by Debian's MinGW-w64 cross compiler, against the Windows headers it carries,
# Debian's Qt 5 headers and glog's headers. Only the platform files are compiled: the rest is the
# same code the Linux build compiles. The export headers come from a configured build folder
# (BUILD_DIR, default build/; configured here when it is not). Exits non-zero when any file is
# not listed or does not compile.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
cxx=${MINGW_CXX:-x86_64-w64-mingw32-g++-posix}

command -v "$cxx" >/dev/null || { echo "wincheck: $cxx not found: run scripts/bootstrap.sh" >&2; exit 1; }
if [ ! -d "$build/include" ]; then
  generator=()
  [ -f "$build/CMakeCache.txt" ] || generator=(-G Ninja)
  cmake -S "$root" -B "$build" "${generator[@]}" >/dev/null
fi

# glog (with the gflags it includes) and Boost through a folder that holds only them: pointing the cross compiler at
# /usr/include itself would let the Linux C library's headers shadow MinGW's own.
only=$(mktemp -d)
trap 'rm -rf "$only"' EXIT
ln -s /usr/include/glog "$only/glog"
ln -s /usr/include/boost "$only/boost"
ln -s /usr/include/gflags "$only/gflags"

qt=$(qmake -query QT_INSTALL_HEADERS 2>/dev/null || echo /usr/include/x86_64-linux-gnu/qt5)
flags=(-std=c++17 -fsyntax-only -Wall -Wextra -Wno-unused-parameter
       -DUNICODE -D_UNICODE
       -DQT_NO_CAST_TO_ASCII -DQT_NO_CAST_FROM_BYTEARRAY -DQT_USE_QSTRINGBUILDER -DQT_NO_FOREACH
       -DQT_NO_URL_CAST_FROM_STRING
       -I"$root/src" -I"$root/host" -I"$build/include" -isystem "$only"
       -isystem "$qt" -isystem "$qt/QtCore" -isystem "$qt/QtGui" -isystem "$qt/QtWidgets"
       -isystem "$qt/QtNetwork")

failed=0
count=0
while IFS= read -r file; do
  count=$((count + 1))
  # The Linux build never reads the Windows lists: each file must be named, by its path from the
  # folder, in the CMakeLists.txt of the nearest folder above it that has one.
  dir=$(dirname "$file")
  while [ "$dir" != . ] && [ ! -f "$root/$dir/CMakeLists.txt" ]; do dir=$(dirname "$dir"); done
  if ! grep -qE "(^|[[:space:]])${file#"$dir"/}([[:space:])]|$)" "$root/$dir/CMakeLists.txt"; then
    echo "wincheck: FAILED $file is in no list of $dir/CMakeLists.txt"
    failed=$((failed + 1))
  elif "$cxx" "${flags[@]}" "$root/$file"; then
    echo "wincheck: ok     $file"
  else
    echo "wincheck: FAILED $file"
    failed=$((failed + 1))
  fi
done < <(cd "$root" && git ls-files '*_win.cpp' 2>/dev/null || find src host -name '*_win.cpp' | sort)

echo "wincheck: $count files, $failed failed"
[ "$count" -gt 0 ] && [ "$failed" -eq 0 ]
