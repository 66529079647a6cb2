#!/usr/bin/env bash
# Proves that the packages name every dependency: a bare Debian 12 root made by mmdebstrap (the
# "apt" variant: the essential packages and apt, nothing else), the packages of PACKAGE_DIR
# installed into it with apt, which brings
# only what they declare (PACKAGE_DIR, or scripts/package.sh builds them), then in that root:
#   - the sample host runs offscreen until its first window is shown and ends with status 0;
#   - examples/minimal-product, with a compiler and CMake as a product team has them, is built
#     against the installed packages and runs.
# A missing dependency fails one of the three. Debian's packages are fetched once and kept in
# CACHE_DIR (default ~/.cache/ostrel-bareroot) for the next run; WORK_DIR keeps the root.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cache=${CACHE_DIR:-$HOME/.cache/ostrel-bareroot}
work=${WORK_DIR:-$(mktemp -d)}
[ -n "${WORK_DIR:-}" ] || trap 'rm -rf "$work"' EXIT
debs=${PACKAGE_DIR:-$work/packages}
[ -n "${PACKAGE_DIR:-}" ] || PACKAGE_DIR=$debs "$root/scripts/package.sh" >/dev/null
ls "$debs"/*.deb >/dev/null
mkdir -p "$cache" "$work/in/debs"
cp "$debs"/*.deb "$work/in/debs/"
cp -r "$root/examples/minimal-product" "$work/in/product-src"
cat >"$work/in/run.sh" <<'EOF'
#!/bin/sh
# Runs inside the bare root, as a product team would after installing the packages.
set -eu
export HOME=/tmp/home XDG_CONFIG_HOME=/tmp/home/config XDG_RUNTIME_DIR=/tmp/home/runtime
export QT_QPA_PLATFORM=offscreen GLOG_v=1
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
# Launch type 4: nobody in front of the program, so nothing asks and no page opens.
timeout 60 ostrel-host --quit-after=1500 --no-start-nag --launch-type=4 >/tmp/host.out 2>/tmp/host.err || {
  cat /tmp/host.out /tmp/host.err >&2
  echo "bareroot: ostrel-host failed" >&2
  exit 1
}
log=$(sed -n 's/^Log: //p' /tmp/host.out)
if ! grep -q 'Start stage show' "$log" || ! grep -q 'Event loop ended with status 0' "$log"; then
  cat "$log" >&2
  echo "bareroot: ostrel-host did not show its window and end cleanly" >&2
  exit 1
fi
echo "bareroot: ostrel-host showed its window and ended with status 0"
cmake -S /tmp/in/product-src -B /tmp/product -DCMAKE_BUILD_TYPE=RelWithDebInfo >/tmp/product.log
cmake --build /tmp/product >>/tmp/product.log || {
  cat /tmp/product.log >&2
  exit 1
}
timeout 60 /tmp/product/minimal-product --show-nag --quit-after=3000
echo "bareroot: minimal-product built and ran"
EOF
chmod +x "$work/in/run.sh"

rm -rf "$work/root"
# Debian's packages come through a cache of our own, bound into the root while apt runs (and
# unbound before anything else can fail), seeded by hard links from the machine's own apt cache,
# since apt checks every file against Debian's index anyway.
if [ -z "$(ls -A "$cache")" ] && [ -d /var/cache/apt/archives ]; then
  cp -l /var/cache/apt/archives/*.deb "$cache/" 2>/dev/null || true
fi
bind="mkdir -p \"\$1/var/cache/apt/archives\" && mount -o bind '$cache' \"\$1/var/cache/apt/archives\""
# The product's build tools are the only packages named besides ours.
install='chroot "$1" sh -c "apt-get install -y -q --no-install-recommends /tmp/in/debs/*.deb cmake g++ make >/tmp/apt.log 2>&1"; status=$?; umount "$1/var/cache/apt/archives"; [ $status -eq 0 ] || { cat "$1/tmp/apt.log"; exit 1; }'
mmdebstrap --quiet --variant=apt --mode=root --skip=download/empty --skip=essential/unlink \
  --setup-hook="$bind" --essential-hook='umount "$1/var/cache/apt/archives"' \
  --customize-hook="$bind" --customize-hook="copy-in '$work/in' /tmp" --customize-hook="$install" \
  --customize-hook='chroot "$1" /tmp/in/run.sh' \
  bookworm "$work/root" >&2
