#!/usr/bin/env bash
# The tree's C++ formatted by its .clang-format, with the clang-format that Debian 12 ships (other
# versions format some constructs differently). `scripts/format.sh` rewrites the tracked sources in
# place; `scripts/format.sh --check` changes nothing and fails, naming the lines, where a file
# differs (CI runs this).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
"$root/scripts/bootstrap.sh"
format=${CLANG_FORMAT:-clang-format-14}
command -v "$format" >/dev/null || { echo "format: $format not found; run scripts/bootstrap.sh" >&2; exit 2; }
mapfile -t files < <(git ls-files '*.cpp' '*.h')
if [ "${1:-}" = --check ]; then
  "$format" --dry-run --Werror "${files[@]}"
  echo "format: ${#files[@]} files as .clang-format has them"
else
  "$format" -i "${files[@]}"
fi
