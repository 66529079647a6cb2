#!/usr/bin/env bash
# The three sample nags and the host's main window at the screen scales users run (QT_SCALE_FACTOR
# 1.25, 1.5 and 2) in a few locales, on a real X display (Xvfb, openbox, xcb): one picture per
# window in build/scales/<locale>-<scale>-<window>.png, for a person to look at (nothing cut off, no
# text outside its holder). Not a test: it fails only when a window does not appear. The nags'
# published fingerprints are those of 100 %, which scripts/uiwalk.sh and the nag tests keep.
#
#   SCALES_LOCALES   the locales (default: en_US ja_JP ru_RU de_DE)
#   SCALES_FACTORS   the scale factors (default: 1.25 1.5 2)
#   SCALES_DISPLAY   the X display number to use (default: the first free one from 90)
#   BUILD_DIR        the build tree (default: build); the host must be built
set -uo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
host=$build/bin/ostrel-host
out=$build/scales
[ -x "$host" ] || { echo "scales: $host is not built (scripts/build.sh)" >&2; exit 2; }
rm -rf "$out"
mkdir -p "$out"
source "$root/scripts/xdisplay.sh"
x_session scales "${SCALES_DISPLAY:-}" 2560x1600x24 # room for the main window at 200 %
export QT_QPA_PLATFORM=xcb BROWSER=/bin/true LANG=C.UTF-8
unset LC_ALL

failures=0
windows() { xdotool search --onlyvisible --pid "$hostpid" 2>/dev/null | sort; }
newest() { comm -13 <(printf '%s\n' "$@" | sort) <(windows) | tail -n 1; }
# shot NAME ID: the window's picture, once it has painted; the window is left as it is.
shot() {
  [ -n "$2" ] || return 1 # without a window, import would wait for a click
  local try
  for try in 1 2 3; do
    sleep 1.2 # mapped is not yet painted; a nag fades in
    import -window "$2" "$out/$prefix-$1.png" 2>/dev/null && { echo "scales: $out/$prefix-$1.png"; return 0; }
  done
  echo "scales: $prefix: no picture of $1" >&2
  failures=$((failures + 1))
}
close() {
  xdotool windowactivate --sync "$1" >/dev/null 2>&1
  xdotool key --clearmodifiers Escape
  sleep 0.4
}

for locale in ${SCALES_LOCALES:-en_US ja_JP ru_RU de_DE}; do
  for factor in ${SCALES_FACTORS:-1.25 1.5 2}; do
    prefix=$locale-$factor
    # A first start of a user of its own, in this language.
    export HOME=$work/$prefix XDG_CONFIG_HOME=$work/$prefix/.config XDG_DATA_HOME=$work/$prefix/.local/share
    export XDG_RUNTIME_DIR=$work/$prefix/run LANGUAGE=$locale QT_SCALE_FACTOR=$factor
    mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
    "$host" --start-nag-delay=300 >"$work/$prefix.out" 2>&1 &
    hostpid=$!
    pids+=($hostpid)
    # The usage statistics question first, then the welcome nag (app_start) once it is answered.
    # The question is the window named neither as the host nor as its splash (the program's name).
    question=
    for _ in $(seq 300); do
      for window in $(windows); do
        case "$(xdotool getwindowname "$window" 2>/dev/null)" in
        '' | 'Ostrel Host' | 'ostrel-host') ;;
        *) question=$window ;;
        esac
      done
      [ -n "$question" ] && break
      sleep 0.1
    done
    if [ -z "$question" ]; then
      echo "scales: $prefix: the first start showed no question" >&2
      failures=$((failures + 1))
      kill "$hostpid"
      continue
    fi
    shot question "$question"
    base=$(xdotool search --all --onlyvisible --pid "$hostpid" --name '^Ostrel Host$' 2>/dev/null)
    close "$question"
    for nag in app_start app_close before_routine; do
      window=
      for step in $(seq 150); do
        # Asked again half way, should the first request go unanswered (seen once, under load).
        if [ "$nag" != app_start ] && { [ "$step" -eq 1 ] || [ "$step" -eq 75 ]; }; then
          "$host" --open-nag="qrc:/NagScreen/$nag/main.qml" >>"$work/$prefix.out" 2>&1
        fi
        window=$(newest $base $question)
        [ -n "$window" ] && break
        sleep 0.1
      done
      if [ -n "$window" ]; then
        shot "$nag" "$window"
        close "$window"
      else
        echo "scales: $prefix: the nag $nag did not appear" >&2
        failures=$((failures + 1))
      fi
    done
    main=$(xdotool search --all --onlyvisible --pid "$hostpid" --name '^Ostrel Host$' 2>/dev/null | tail -n 1)
    shot main "$main"
    kill "$hostpid"
    wait "$hostpid" 2>/dev/null
  done
done
[ "$failures" -eq 0 ] || { echo "scales: $failures window(s) did not appear; pictures in $out" >&2; exit 1; }
echo "scales: pictures in $out"
