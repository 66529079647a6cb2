#!/usr/bin/env bash
# The shell as a product team gets it: builds the Debian packages (scripts/package.sh), unpacks
# them with dpkg -x into a fresh root that is the only copy of the shell the product sees, then
# configures, builds and runs examples/minimal-product against that root, outside the build tree,
# offscreen, until it ends by itself. The sample host from the same root runs once too.
# WORK_DIR (default: a temporary folder, removed at the end) keeps the root and the product's build.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
work=${WORK_DIR:-$(mktemp -d)}
[ -n "${WORK_DIR:-}" ] || trap 'rm -rf "$work"' EXIT
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH 2>/dev/null || gcc -print-multiarch)

PACKAGE_DIR="$work/packages" "$root/scripts/package.sh"
rm -rf "$work/root" "$work/product" "$work/product-src"
# A product needs the libraries and the development package; the host's package joins later.
for deb in "$work"/packages/libostrel*.deb; do dpkg -x "$deb" "$work/root"; done
prefix=$work/root/usr
libs=$prefix/lib/$multiarch

# The product's sources are copied out, so nothing of the shell's tree is within its reach.
cp -r "$root/examples/minimal-product" "$work/product-src"
cmake -S "$work/product-src" -B "$work/product" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF >/dev/null
if ! grep -qx "Ostrel_DIR:PATH=$libs/cmake/Ostrel" "$work/product/CMakeCache.txt"; then
  echo "example: the product found another copy of the shell: $(grep '^Ostrel_DIR' "$work/product/CMakeCache.txt")" >&2
  exit 1
fi
cmake --build "$work/product"

# Every library of the shell must come from the root, never from the build tree or the system.
export LD_LIBRARY_PATH=$libs
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
export XDG_CONFIG_HOME=$work/home/config XDG_DATA_HOME=$work/home/data XDG_CACHE_HOME=$work/home/cache
export XDG_RUNTIME_DIR=$work/home/runtime
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
unresolved=$(ldd "$work/product/minimal-product" | grep -E 'libOstrel' | grep -v "=> $libs/" || true)
if [ -n "$unresolved" ]; then
  echo "example: libraries not taken from the unpacked root:" >&2
  echo "$unresolved" >&2
  exit 1
fi
# The product's resource tree came from the development package.
test -f "$work/product/resources/locales/de_DE/ostrel_de_DE.qm"
timeout 60 "$work/product/minimal-product" --show-nag --quit-after=3000
echo "example: minimal-product built and ran against $prefix"
# Installed by the rules HOSTING.md gives: the link on PATH and the resource tree beside the
# resolved executable, through its link into share/.
rm -rf "$work/stage"
DESTDIR=$work/stage cmake --install "$work/product" --prefix /usr >/dev/null
test -f "$work/stage/usr/lib/minimal-product/resources/locales/de_DE/ostrel_de_DE.qm"
timeout 60 "$work/stage/usr/bin/minimal-product" --quit-after=500 2>"$work/installed.err"
if grep -q "resource tree is missing" "$work/installed.err"; then
  echo "example: the installed minimal-product did not find its resources" >&2
  exit 1
fi
echo "example: minimal-product installed and ran from $work/stage/usr/bin"
dpkg -x "$work"/packages/ostrel-host_*.deb "$work/root"
# Launch type 4: nobody in front of the program, so no page opens and nothing asks.
timeout 60 "$prefix/bin/ostrel-host" --quit-after=1500 --no-start-nag --launch-type=4 >/dev/null 2>"$work/host.err"
if grep -q 'No "resources" folder' "$work/host.err"; then
  echo "example: the packaged host did not find its resources" >&2
  exit 1
fi
echo "example: ostrel-host ran from $prefix"
