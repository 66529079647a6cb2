#!/usr/bin/env bash
# Builds the Debian packages of the shell into PACKAGE_DIR (default: <build>/packages) and lists
# them. The build tree (BUILD_DIR, default build-packages/) is a build of its own, reproducible
# (OSTREL_REPRODUCIBLE), without tests or benchmarks, for the prefix /usr with Debian's multiarch
# library folder. What `cmake --install` puts in a staging root is split into packages the way
# a Debian maintainer's tools would (packaging/ holds the copyright and the changelog):
#
#   libostrel<name>1  one per shared library, named after its SONAME (libOstrel<Name>.so.1), with
#                     its shlibs file and the ldconfig trigger
#   libostrel-data    the shell's translations and sample themes, /usr/share/ostrel/resources:
#                     the one copy, read by the host and by a product's build (Architecture: all)
#   libostrel-dev     headers, the unversioned links and the CMake package
#   ostrel-host       the sample host, its desktop entry, icon, AppStream metainfo and manual page
#
# The packages are reproducible: file times are the last commit's (SOURCE_DATE_EPOCH), owners
# root, modes normalised, so the same commit built in two folders gives the same bytes
# (scripts/reproducible.sh checks it). LINTIAN=1 runs lintian on every package and fails on any
# error or warning.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build-packages}
out=${PACKAGE_DIR:-$build/packages}
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH 2>/dev/null || gcc -print-multiarch)
arch=$(dpkg --print-architecture)
# Resources compiled into the libraries, generated pages and the packages carry file times: the last
# commit's, so that a build does not depend on when its files were checked out.
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct)}
BUILD_DIR="$build" "$root/scripts/build.sh" -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_INSTALL_LIBDIR="lib/$multiarch" \
  -DOSTREL_REPRODUCIBLE=ON -DBUILD_TESTING=OFF -DOSTREL_BUILD_BENCHMARKS=OFF "$@"

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
major=${version%%.*}
full_version=$version-$(dpkg-parsechangelog -l "$root/packaging/changelog" -S Version | sed 's/.*-//')
if [ "$(dpkg-parsechangelog -l "$root/packaging/changelog" -S Version)" != "$full_version" ]; then
  echo "package: packaging/changelog does not start with version $version" >&2
  exit 1
fi
maintainer=$(dpkg-parsechangelog -l "$root/packaging/changelog" -S Maintainer)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
stage=$work/stage
DESTDIR=$stage cmake --install "$build" >/dev/null
libdir=usr/lib/$multiarch
rm -rf "$out"
mkdir -p "$out" "$work/shlibs/debian"
: >"$work/shlibs/debian/control"

# A library package's name: the SONAME's name in lower case with its version (libOstrelApp.so.1:
# libostrelapp1).
lib_package() { local name=${1%.so.*}; echo "${name,,}$major"; }
lib_packages=()
for lib in "$stage/$libdir"/libOstrel*.so."$major"; do
  soname=$(basename "$lib")
  echo "${soname%.so.*} $major $(lib_package "$soname") (>= $version)" >>"$work/shlibs/debian/shlibs.local"
done

# make_package <name> <architecture> <section> <depends> <description> <path in the stage>...
make_package() {
  local name=$1 architecture=$2 section=$3 depends=$4 description=$5
  shift 5
  local pkg=$work/pkg/$name
  mkdir -p "$pkg/DEBIAN" "$pkg/usr/share/doc/$name"
  for path in "$@"; do
    mkdir -p "$pkg/$(dirname "$path")"
    mv "$stage/$path" "$pkg/$path"
  done
  cp "$root/packaging/copyright" "$pkg/usr/share/doc/$name/copyright"
  gzip -9n <"$root/packaging/changelog" >"$pkg/usr/share/doc/$name/changelog.Debian.gz"
  mkdir -p "$pkg/usr/share/lintian/overrides"
  cp "$root/packaging/lintian-overrides" "$pkg/usr/share/lintian/overrides/$name"
  [ ! -d "$pkg/usr/share/man" ] || find "$pkg/usr/share/man" -type f ! -name '*.gz' -exec gzip -9n {} +

  # As dh_strip and dh_fixperms leave them.
  local elf=()
  while IFS= read -r -d '' file; do
    if [ "$(head -c 4 "$file" | od -An -c | tr -d ' ')" = '177ELF' ]; then elf+=("$file"); fi
  done < <(find "$pkg/usr" -type f -print0)
  find "$pkg" -type d -exec chmod 0755 {} +
  find "$pkg" -type f -exec chmod 0644 {} +
  for file in "${elf[@]}"; do
    case $file in
      *.so*) strip --remove-section=.comment --remove-section=.note --strip-unneeded "$file" ;;
      *)
        strip --remove-section=.comment --remove-section=.note "$file"
        chmod 0755 "$file"
        ;;
    esac
  done

  if [ ${#elf[@]} -gt 0 ]; then
    local found
    found=$(cd "$work/shlibs" && dpkg-shlibdeps -O -l"$stage/$libdir" -l"$work/pkg/libs/$libdir" "${elf[@]}" 2>"$work/shlibdeps.err") || {
      cat "$work/shlibdeps.err" >&2
      return 1
    }
    found=${found#shlibs:Depends=}
    depends=${depends:+$depends, }$found
  fi

  {
    echo "Package: $name"
    echo "Source: ostrel"
    echo "Version: $full_version"
    echo "Architecture: $architecture"
    echo "Maintainer: $maintainer"
    echo "Installed-Size: $(du -sk --apparent-size "$pkg/usr" | cut -f1)"
    [ -z "$depends" ] || echo "Depends: $depends"
    echo "Section: $section"
    echo "Priority: optional"
    echo "Homepage: https://www.ostrel.com/"
    echo "Description: $description"
  } >"$pkg/DEBIAN/control"
  if [ -n "${shlibs_line:-}" ]; then
    echo "$shlibs_line" >"$pkg/DEBIAN/shlibs"
    echo "activate-noawait ldconfig" >"$pkg/DEBIAN/triggers"
  fi
  (cd "$pkg" && find usr -type f -print0 | LC_ALL=C sort -z | xargs -0 md5sum) >"$pkg/DEBIAN/md5sums"
  chmod 0644 "$pkg/DEBIAN"/*
  find "$pkg" -newermt "@$SOURCE_DATE_EPOCH" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
  dpkg-deb --root-owner-group -Zxz --build "$pkg" "$out/${name}_${full_version}_${architecture}.deb" >/dev/null
}

# The libraries first: the others' dependencies on them are read off their files. Each library's
# package is staged apart, in pkg/libs, only to be found there by dpkg-shlibdeps.
for lib in "$stage/$libdir"/libOstrel*.so."$major"; do
  soname=$(basename "$lib")
  package=$(lib_package "$soname")
  name=${soname#libOstrel}
  name=${name%.so.*}
  depends=
  shlibs_line="${soname%.so.*} $major $package (>= $version)"
  # The shell reads Qt's own translations and runs its nags' QML at run time, out of
  # dpkg-shlibdeps' sight.
  [ "$name" != App ] || depends="libostrel-data (= $full_version), qttranslations5-l10n, qml-module-qtquick2"
  make_package "$package" "$arch" libs "$depends" "Ostrel application shell: $name library
 The Ostrel application shell owns QApplication and everything a product's
 windows share: the registry of services, the lifetime of the process,
 themes and locales, links, nag screens, touch gestures and test options.
 .
 This package holds the shared library $soname." \
    "$libdir/$soname" "$libdir/$(basename "$(readlink "$lib")")"
  pkg=$work/pkg/$package
  mkdir -p "$work/pkg/libs/$libdir"
  cp -a "$pkg/$libdir"/* "$work/pkg/libs/$libdir/"
  lib_packages+=("$package (= $full_version)")
done
shlibs_line=

make_package libostrel-data all misc "" "Ostrel application shell: translations and themes
 The Ostrel application shell owns QApplication and everything a product's
 windows share: the registry of services, the lifetime of the process,
 themes and locales, links, nag screens, touch gestures and test options.
 .
 This package holds the shell's translations in 14 locales and its sample
 light and dark themes, which a product's resource tree starts from." \
  usr/share/ostrel

dev_links=()
for link in "$stage/$libdir"/libOstrel*.so; do dev_links+=("$libdir/$(basename "$link")"); done
dev_depends=$(
  IFS=,
  echo "${lib_packages[*]}"
)
make_package libostrel-dev "$arch" libdevel \
  "${dev_depends//,/, }, libostrel-data (= $full_version), qtbase5-dev, qtdeclarative5-dev, libboost-dev, libgoogle-glog-dev" \
  "Ostrel application shell: development files
 The Ostrel application shell owns QApplication and everything a product's
 windows share: the registry of services, the lifetime of the process,
 themes and locales, links, nag screens, touch gestures and test options.
 .
 This package holds the headers and the CMake package: find_package(Ostrel)
 gives the targets Ostrel::App and its siblings." \
  usr/include/ostrel "$libdir/cmake/Ostrel" "${dev_links[@]}" \
  usr/share/doc/libostrel-dev/HOSTING.md usr/share/doc/libostrel-dev/examples

make_package ostrel-host "$arch" x11 "libostrel-data (= $full_version)" \
  "sample host of the Ostrel application shell
 ostrel-host shows a product team how to wire the Ostrel application shell,
 with its themes and translations; its test options walk every sample nag in
 every locale." \
  usr/lib/ostrel-host usr/bin/ostrel-host usr/share/applications usr/share/metainfo usr/share/icons \
  usr/share/man/man1/ostrel-host.1

left=$(cd "$stage" && find . ! -type d)
if [ -n "$left" ]; then
  echo "package: installed but in no package:" >&2
  echo "$left" >&2
  exit 1
fi

for deb in "$out"/*.deb; do
  echo "$deb"
  dpkg-deb -f "$deb" Package Version Depends | sed 's/^/  /'
done
[ "${LINTIAN:-0}" = 1 ] || exit 0
# Debian 12's lintian, default profile, once over all packages: errors and warnings are shown, and
# none may be. Overrides (packaging/lintian-overrides) carry their reason.
status=0
lintian --fail-on error,warning "$out"/*.deb >"$work/lintian.txt" 2>&1 || status=1
report=$(grep -v '^running with root privileges' "$work/lintian.txt" || true)
for deb in "$out"/*.deb; do
  name=$(dpkg-deb -f "$deb" Package)
  found=$(grep -E "^[EW]: $name( \(binary\))?: " <<<"$report" || true)
  echo "lintian $name: ${found:-no error, no warning}"
done
[ $status -eq 0 ] || echo "$report" >&2

# What a desktop reads of the host: its menu entry and its AppStream description, checked by the
# tools a distribution's own checks use.
host_root=$work/pkg/ostrel-host/usr/share
if desktop-file-validate "$host_root"/applications/*.desktop; then
  echo "desktop-file-validate ostrel-host: valid"
else
  status=1
fi
if appstreamcli validate --no-net --pedantic "$host_root"/metainfo/*.metainfo.xml; then
  echo "appstreamcli validate ostrel-host: valid"
else
  status=1
fi
exit $status
