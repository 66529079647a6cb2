#!/usr/bin/env bash
# Brings the translation sources of resources/locales up to date with the code: every text that the
# shell (src/) and the sample host (host/) mark for translation is extracted with lupdate into each
# ostrel_<locale>.ts, texts no longer in the code are dropped, and the entries each locale still
# lacks are reported. Exits non-zero while any locale has an unfinished entry, so that CI and a
# release catch a text that reached a window without reaching a translator.
#
# Only C++ sources are read: the sample nags under src/Nag/NagScreen carry their own translations.
# The build compiles the .ts files into .qm (resources/CMakeLists.txt); run this script after
# marking or changing a text, translate what it reports, and commit the .ts files.
#
#   scripts/translations.sh                  update the .ts files and report
#   scripts/translations.sh --extract FILE   only write every marked text into FILE (a .ts without
#                                            translations), leaving resources/ alone; the
#                                            translation test compares the .qm files with it
#   LUPDATE   the lupdate to use (default: lupdate from PATH, else Qt 5's own)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"

lupdate=${LUPDATE:-$(command -v lupdate || echo /usr/lib/qt5/bin/lupdate)}
if [ ! -x "$lupdate" ]; then
  echo "translations: lupdate not found; install qttools5-dev-tools (scripts/bootstrap.sh)" >&2
  exit 2
fi

# No source locations: a moved line must not rewrite 14 files. The include paths let lupdate see
# the class a tr() belongs to, namespaces and all; without them a context would lose its namespace
# and never match what the class asks for at run time.
extract() {
  "$lupdate" -silent -locations none -no-obsolete -extensions cpp,h -I src -I host src host -ts "$@" 2>&1 |
    { grep -v 'Ignoring definition of undeclared qualified class' || true; } >&2
}

if [ "${1:-}" = "--extract" ]; then
  [ -n "${2:-}" ] || { echo "translations: --extract needs a file" >&2; exit 2; }
  rm -f "$2"
  extract "$2"
  exit 0
fi

shopt -s nullglob
ts_files=(resources/locales/ostrel_*.ts)
if [ ${#ts_files[@]} -eq 0 ]; then
  echo "translations: no resources/locales/ostrel_*.ts to update" >&2
  exit 2
fi
extract "${ts_files[@]}"

total=0
for ts in "${ts_files[@]}"; do
  # An entry is unfinished while lupdate marks it so or its translation is still empty.
  count=$(grep -cE 'type="unfinished"|<translation>\s*</translation>|<numerusform>\s*</numerusform>' "$ts" || true)
  messages=$(grep -c '<message' "$ts" || true)
  printf '%-22s %4d messages, %4d unfinished\n' "$(basename "$ts")" "$messages" "$count"
  total=$((total + count))
done
echo "translations: ${#ts_files[@]} locales, $total unfinished entries"
[ "$total" -eq 0 ]
