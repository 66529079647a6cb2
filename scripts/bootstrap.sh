#!/usr/bin/env bash
# Installs, from Debian's packages, whatever the build, the tests, CI and the sample host need.
# Idempotent and quiet when everything is already there, so that the README's commands can
# call it every time.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config ccache
  qtbase5-dev qtdeclarative5-dev qttools5-dev qttools5-dev-tools
  qttranslations5-l10n  # Qt's own dialog texts in every product locale, read where Debian installs them
  qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls2 qml-module-qtquick-layouts
  libboost-dev libgoogle-glog-dev libbenchmark-dev
  valgrind  # the event guard's instruction counts (scripts/bench.sh)
  xvfb xauth imagemagick
  openbox xdotool x11-utils  # scripts/uiwalk.sh: a window manager, the driver, xwininfo
  dbus at-spi2-core python3-pyatspi  # scripts/a11y.sh: the desktop's accessibility bus, read as a screen reader does
  fonts-dejavu-core fonts-dejavu-extra
  fonts-noto-cjk  # Japanese, Korean, simplified and traditional Chinese: without it those locales draw boxes
  clang-14 libclang-rt-14-dev clang-format-14
  g++-mingw-w64-x86-64-posix
  wine64 doctest-dev
  locales tzdata
  help2man librsvg2-bin  # the host's manual page and drawn icons
  lintian desktop-file-utils appstream  # the packages' checks (scripts/package.sh)
  diffoscope-minimal  # names the difference when two builds differ (scripts/reproducible.sh)
  mmdebstrap  # a bare Debian root to install the packages into (scripts/bareroot.sh)
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done

if [ ${#missing[@]} -gt 0 ]; then
  if [ "$(id -u)" -ne 0 ]; then
    echo "bootstrap: missing packages: ${missing[*]}; run as root or install them with apt-get" >&2
    exit 1
  fi
  echo "bootstrap: installing ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

# CI runs the suite once more under another system locale (see .ci/run); the locale must exist.
if ! locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$'; then
  if [ "$(id -u)" -ne 0 ]; then
    echo "bootstrap: the de_DE.UTF-8 locale is missing (only CI's locale stage needs it); run as root" >&2
  else
    sed -i 's/^# *\(de_DE.UTF-8 UTF-8\)/\1/' /etc/locale.gen
    grep -q '^de_DE.UTF-8 UTF-8' /etc/locale.gen || echo 'de_DE.UTF-8 UTF-8' >>/etc/locale.gen
    locale-gen >/dev/null
  fi
fi
