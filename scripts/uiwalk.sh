#!/usr/bin/env bash
# The sample host as a new user meets it, on a real X display: Xvfb with a small window manager
# (openbox), the xcb platform, driven by xdotool. It walks the first start (the usage statistics
# question, then the welcome nag), every menu, the colour dialog, All Links, About, F1, a nag
# requested by a second instance, the language switch to ja_JP and de_DE, a restart (which must
# not greet again and reads launch type 3), ru_RU with the colour dialog, and a quit. Each step
# saves a picture in build/uiwalk/ (NN-step.png); the pictures are for people, the steps are the
# test: the walk fails when a step's window does not appear or goes, or when a host does not end
# with status 0.
#
#   UIWALK_DISPLAY   the X display number to use (default: the first free one from 90)
#   BUILD_DIR        the build tree (default: build); the host must be built
set -uo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
host=$build/bin/ostrel-host
out=$build/uiwalk
if [ ! -x "$host" ]; then
  echo "uiwalk: $host is not built (scripts/build.sh)" >&2
  exit 2
fi
rm -rf "$out"
mkdir -p "$out"
source "$root/scripts/xdisplay.sh"
x_session uiwalk "${UIWALK_DISPLAY:-}" 1280x800x24

# A user of its own: settings, lock, socket and log stay in this walk.
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_DATA_HOME=$work/home/.local/share
export XDG_RUNTIME_DIR=$work/run
mkdir -p "$HOME" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=xcb LANG=C.UTF-8 LANGUAGE=en_US
unset LC_ALL
# Links "open" without a browser; the tracking file tells that they did.
export BROWSER=/bin/true
# A host whose log file is still held by the one before it writes ostrel-host.<pid>.log.
logs=$HOME/.local/share/Ostrel/Ostrel\ Host/logs

step=0
failures=0
fail() {
  echo "uiwalk: FAILED: $*" >&2
  failures=$((failures + 1))
  shot "failed"
}
shot() {
  step=$((step + 1))
  local file
  file=$(printf '%s/%02d-%s.png' "$out" "$step" "$1")
  import -window root "$file" 2>/dev/null
  echo "uiwalk: $file"
}
# find_name REGEX [seconds]: the first visible window so named, once there is one.
find_name() {
  local found
  for _ in $(seq $((${2:-15} * 10))); do
    found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1)
    [ -n "$found" ] && { echo "$found"; return 0; }
    sleep 0.1
  done
  return 1
}
# The visible windows of the host process, one id a line.
windows() { xdotool search --onlyvisible --pid "$hostpid" 2>/dev/null | sort; }
count() { windows | wc -l; }
# wait_count OP N [seconds]: until the number of the host's windows compares so.
wait_count() {
  local op=$1 n=$2 limit=${3:-15}
  for _ in $(seq $((limit * 10))); do
    [ "$(count)" "$op" "$n" ] && return 0
    sleep 0.1
  done
  return 1
}
# The newest window of the host: the one not among the windows given.
newest() { comm -13 <(printf '%s\n' "$@" | sort) <(windows) | tail -n 1; }
key() { xdotool key --clearmodifiers "$@"; sleep 0.3; }
# opens NAME KEYS...: the keys must open one more window, which is pictured and closed by Escape.
opens() {
  local name=$1
  shift
  local before
  before=$(count)
  key "$@"
  if ! wait_count -gt "$before"; then
    fail "$name: no window appeared"
    return 1
  fi
  sleep 0.4
  shot "$name"
  return 0
}
closes() {
  local name=$1 before=$2
  key Escape
  wait_count -le "$before" || fail "$name: the window did not close"
}
focus_main() {
  xdotool windowactivate --sync "$mainwin" >/dev/null 2>&1
  sleep 0.3
}
tracked() {
  local n
  n=$(grep -c "$1" "$HOME/.local/share/Ostrel/Ostrel Host/tracking.jsonl" 2>/dev/null)
  echo "${n:-0}"
}
# A host started by this walk ends with status 0; a restarted one says so in its log.
ended_well() {
  local pid=$1
  for _ in $(seq 300); do kill -0 "$pid" 2>/dev/null || return 0; sleep 0.1; done
  return 1
}

# 1. The first start: the usage statistics question, alone; the welcome nag once it is answered.
"$host" --start-nag-delay=300 >"$work/host1.out" 2>&1 &
hostpid=$!
pids+=($hostpid)
mainwin=$(find_name '^Ostrel Host$' 30)
[ -n "$mainwin" ] || { fail "the main window did not appear"; exit 1; }
wait_count -ge 2 || fail "the usage statistics question did not appear"
question=$(find_name '^Attention$' 5)
[ -n "$question" ] || fail "the usage statistics question has another title"
sleep 1.5 # the welcome nag's time has come meanwhile: it must wait for the answer
[ "$(count)" -eq 2 ] || fail "a window opened over the usage statistics question"
shot "first-start-question"
xdotool windowactivate --sync "$question" >/dev/null 2>&1
key Escape
wait_count -ge 2 || fail "the welcome nag did not follow the question"
sleep 1
[ -z "$(xdotool search --onlyvisible --name '^Attention$' 2>/dev/null)" ] || fail "the question stayed"
shot "first-start-welcome-nag"
nag=$(newest "$mainwin")
[ -n "$nag" ] && xdotool windowactivate --sync "$nag" >/dev/null 2>&1
closes "welcome nag" 1

# 2. Every menu of the bar, by its mnemonic.
focus_main
for menu in f l t o s h; do
  before=$(count)
  opens "menu-$menu" "alt+$menu" && closes "menu $menu" "$before"
  focus_main
done
# The greeting is back once the pointer has passed over a menu.
mainx=$(xwininfo -id "$mainwin" | awk '/Absolute upper-left X/ {print $4}')
mainy=$(xwininfo -id "$mainwin" | awk '/Absolute upper-left Y/ {print $4}')
before=$(count)
key alt+h
xdotool mousemove $((mainx + 300)) $((mainy + 60)) sleep 0.3 mousemove $((mainx + 300)) $((mainy + 200))
sleep 0.3
closes "help menu" "$before"
shot "status-bar-after-menu"

# 3. The colour dialog, All Links (filtered), About, and F1.
before=$(count)
opens "colour-dialog" alt+o c && closes "colour dialog" "$before"
focus_main
before=$(count)
if opens "all-links" alt+h l; then
  xdotool type --delay 60 "faq"
  sleep 0.5
  shot "all-links-filtered"
  opened=$(tracked URL_OPEN)
  key Return
  for _ in $(seq 50); do [ "$(tracked URL_OPEN)" -gt "$opened" ] && break; sleep 0.1; done
  [ "$(tracked URL_OPEN)" -gt "$opened" ] || fail "Enter in All Links opened no link"
  closes "all links" "$before"
fi
focus_main
before=$(count)
opens "about" alt+h a && closes "about" "$before"
focus_main
opened=$(tracked URL_OPEN)
key F1
for _ in $(seq 50); do [ "$(tracked URL_OPEN)" -gt "$opened" ] && break; sleep 0.1; done
[ "$(tracked URL_OPEN)" -gt "$opened" ] || fail "F1 opened no help link"

# The light theme styles the same dialogs (Theme lists Dark, then Light).
focus_main
key alt+t Down Return
sleep 0.5
before=$(count)
opens "light-colour-dialog" alt+o c && closes "colour dialog" "$before"
focus_main
before=$(count)
opens "light-all-links" alt+h l && closes "all links" "$before"
focus_main
key alt+t Return

# 4. A nag asked for by a second instance shows in this one, over its window.
before=$(count)
"$host" --open-nag=qrc:/NagScreen/app_close/main.qml >"$work/second.out" 2>&1 ||
  fail "the second instance did not hand its nag over"
if wait_count -gt "$before"; then
  sleep 1
  shot "requested-nag"
  nag=$(newest "$mainwin")
  [ -n "$nag" ] && xdotool windowactivate --sync "$nag" >/dev/null 2>&1
  closes "requested nag" "$before"
else
  fail "the requested nag did not appear"
fi

# 5. Japanese, then German (the Language menu lists the locales by name: de_DE first, ja_JP sixth).
focus_main
key alt+l Down Down Down Down Down Return
sleep 1
shot "ja_JP"
before=$(count)
opens "ja_JP-help-menu" alt+h && closes "help menu" "$before"
focus_main
key alt+l Return
sleep 1
shot "de_DE"
before=$(count)
opens "de_DE-colour-dialog" alt+o e && closes "colour dialog" "$before"

# 6. Restart: the confirmation in German (Qt's own buttons too), then a new process that reads
#    launch type 3 and does not greet again.
focus_main
before=$(count)
opens "de_DE-restart-question" alt+d n || exit 1
key Return
ended_well "$hostpid" || fail "the first host did not end after the restart"
wait "$hostpid"
status=$?
[ "$status" -eq 0 ] || fail "the first host ended with status $status"
mainwin=$(find_name '^Ostrel Host$' 30)
[ -n "$mainwin" ] || { fail "the host did not come back after the restart"; exit 1; }
hostpid=$(xdotool getwindowpid "$mainwin")
pids+=($hostpid)
sleep 2 # the welcome nag's time: it must not come
[ "$(count)" -eq 1 ] || fail "a window opened at the restart (the welcome nag greets once)"
shot "restarted"

# 7. Russian, with Qt's own texts in the colour dialog; then the quit.
focus_main
key alt+s Down Down Down Down Down Down Down Down Down Down Return
sleep 1
shot "ru_RU"
before=$(count)
# No Latin mnemonic in Russian: the pointer opens File, the arrows walk to Options' first entry.
x=$(xwininfo -id "$mainwin" | awk '/Absolute upper-left X/ {print $4}')
y=$(xwininfo -id "$mainwin" | awk '/Absolute upper-left Y/ {print $4}')
xdotool mousemove $((x + 12)) $((y + 10)) click 1
sleep 0.5
key Right Right Right Return
if wait_count -gt "$before"; then
  sleep 0.4
  shot "ru_RU-colour-dialog"
  closes "colour dialog" "$before"
else
  fail "ru_RU-colour-dialog: no window appeared"
fi
focus_main
key ctrl+q
ended_well "$hostpid" || fail "the restarted host did not quit"
# The logs are complete once their hosts have ended.
cat "$logs"/*.log | grep -q "Launch type 3 " || fail "the restarted host does not read launch type 3"
[ "$(cat "$logs"/*.log | grep -c 'Event loop ended with status 0')" -eq 2 ] ||
  fail "a host did not end with status 0 ($(cat "$logs"/*.log | grep 'Event loop ended' | tr '\n' ' '))"

if [ "$failures" -gt 0 ]; then
  echo "uiwalk: $failures step(s) failed; pictures in $out" >&2
  cp "$logs"/*.log "$out/" 2>/dev/null
  exit 1
fi
echo "uiwalk: every step passed; $step pictures in $out"
