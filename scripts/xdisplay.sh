# Sourced by the scripts that drive the sample host on a real X display (scripts/uiwalk.sh,
# scripts/scales.sh). x_session NAME NUMBER SIZE: Xvfb on display NUMBER (when empty, the first
# free one from 90) with the openbox window manager, DISPLAY exported, a scratch folder in "work";
# at exit the processes in "pids" end and the folder goes.
x_session() {
  local name=$1 size=$3 tool
  for tool in Xvfb openbox xdotool import; do
    command -v "$tool" >/dev/null || { echo "$name: $tool is missing (scripts/bootstrap.sh)" >&2; exit 2; }
  done
  display=$2
  if [ -z "$display" ]; then
    display=90
    while [ -e "/tmp/.X11-unix/X$display" ] || [ -e "/tmp/.X$display-lock" ]; do display=$((display + 1)); done
  fi
  export DISPLAY=:$display
  work=$(mktemp -d "/tmp/$name.XXXXXX")
  pids=()
  trap x_cleanup EXIT
  Xvfb ":$display" -screen 0 "$size" -nolisten tcp >"$work/xvfb.log" 2>&1 &
  pids+=($!)
  for _ in $(seq 50); do xdotool getmouselocation >/dev/null 2>&1 && break; sleep 0.1; done
  openbox >"$work/openbox.log" 2>&1 &
  pids+=($!)
  sleep 1
}

x_cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
  rm -rf "$work"
}
