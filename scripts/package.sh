#!/usr/bin/env bash
# Builds the Debian packages of the shell (libostrel1, libostrel-dev, ostrel-host) with CPack into
# PACKAGE_DIR (default: <build>/packages) and lists them. The build tree (BUILD_DIR, default
# build/) is configured for the prefix /usr with Debian's multiarch library folder, which changes
# only where things install, so an existing build is reused as it stands.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
out=${PACKAGE_DIR:-$build/packages}
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH 2>/dev/null || gcc -print-multiarch)
BUILD_DIR="$build" "$root/scripts/build.sh" -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_INSTALL_LIBDIR="lib/$multiarch" "$@"
rm -rf "$out"
mkdir -p "$out"
(cd "$build" && cpack -G DEB -B "$out" >"$out/cpack.log") || {
  cat "$out/cpack.log" >&2
  exit 1
}
rm -rf "$out/_CPack_Packages"
for deb in "$out"/*.deb; do
  echo "$deb"
  dpkg-deb -f "$deb" Package Version Depends | sed 's/^/  /'
done
