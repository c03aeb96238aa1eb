# Sourced by the install tests. play XWINDOW KEYS COMMAND...: starts the game by COMMAND under
# Xvfb, presses KEYS in its window (none when empty), then closes it as its close box does.
play() {
  xvfb-run -a -s "-screen 0 1024x768x24" bash -c '
    set -u
    xwindow=$1 keys=$2; shift 2
    "$@" & pid=$!
    "$xwindow" wait Zarvo 20 >/dev/null || { echo "no window titled Zarvo appeared"; kill $pid; exit 1; }
    if [ -n "$keys" ]; then
      xdotool windowfocus --sync "$(xdotool search --onlyvisible --name "^Zarvo\$" | head -1)"
      xdotool key "$keys"; sleep 0.3
    fi
    "$xwindow" close Zarvo
    wait $pid' _ "$@"
}
