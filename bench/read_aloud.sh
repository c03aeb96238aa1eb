#!/usr/bin/env bash
# What a screen reader hears: starts the built game under Xvfb with an accessibility bus, plays
# a few steps by keys, and prints the accessible tree after each (bench/read_aloud.py). Needs
# python3-pyatspi and at-spi2-core besides the build.
#   bash bench/read_aloud.sh
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$build/bin/Zarvo" "$build/bin/Zarvo.dat" "$work/"
xvfb-run -a -s "-screen 0 1024x768x24" dbus-run-session -- bash -s "$work" "$root/bench/read_aloud.py" <<'INNER' 2>/dev/null
set -u
work=$1; reader=$2
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
/usr/libexec/at-spi-bus-launcher --launch-immediately & sleep 1
"$work/Zarvo" & pid=$!; sleep 2
window=$(xdotool search --name '^Zarvo$' | head -1)
xdotool windowfocus --sync "$window"
step() { xdotool key --delay 300 "$@"; sleep 1.5; }   # to the window that has the focus
/usr/bin/python3 "$reader" "a new game"
step Return;         /usr/bin/python3 "$reader" "after the first roll"
step Return y;       /usr/bin/python3 "$reader" "choosing a category (Accept answered Yes)"
step alt+o; step h;  /usr/bin/python3 "$reader" "the High Scores window"
kill $pid
INNER
