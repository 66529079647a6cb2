#!/usr/bin/env bash
# Builds the Debian packages of the last commit twice, from two clones in folders of different names
# and depths, and compares them byte for byte; diffoscope names what differs. The clones live under
# build-repro/ (WORK_DIR) so that the compiler cache, keyed relative to /work, serves both.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
work=${WORK_DIR:-$root/build-repro}
commit=$(git -C "$root" rev-parse HEAD)
rm -rf "$work"
mkdir -p "$work"
for tree in one/ostrel second/tree/of/ostrel-shell; do
  git clone -q --shared --no-checkout "$(git -C "$root" rev-parse --path-format=absolute --git-common-dir)" "$work/$tree"
  git -C "$work/$tree" checkout -q --detach "$commit"
  PACKAGE_DIR="$work/$(basename "$tree").debs" BUILD_DIR="$work/$tree/build-packages" \
    bash "$work/$tree/scripts/package.sh" >/dev/null
done
status=0
count=0
for deb in "$work"/ostrel.debs/*.deb; do
  other=$work/ostrel-shell.debs/$(basename "$deb")
  count=$((count + 1))
  if ! cmp -s "$deb" "$other"; then
    echo "reproducible: $(basename "$deb") differs between the two builds" >&2
    diffoscope --text - "$deb" "$other" | head -200 >&2 || true
    status=1
  fi
done
[ "$count" -gt 0 ] || {
  echo "reproducible: no package built" >&2
  exit 1
}
[ "$status" -ne 0 ] || {
  echo "reproducible: $count packages, identical from $work/one and $work/second/tree/of"
  rm -rf "$work"
}
exit $status
