#!/usr/bin/env bash
# The real program under Xvfb: it starts without a data file, shows its window "Zarvo",
# ends cleanly when the window is closed, and leaves no data file behind.
set -euo pipefail
exe=$1
xwindow=$2
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
cp "$exe" "$dir/Zarvo"

xvfb-run -a -s "-screen 0 1024x768x24" bash -c '
  set -u
  "$1/Zarvo" & pid=$!
  if ! "$2" wait Zarvo 20 >/dev/null; then echo "no window titled Zarvo appeared"; kill $pid; exit 1; fi
  "$2" close Zarvo
  for _ in $(seq 100); do kill -0 $pid 2>/dev/null || break; sleep 0.1; done
  if kill -0 $pid 2>/dev/null; then echo "Zarvo did not end after its window was closed"; kill $pid; exit 1; fi
  wait $pid' _ "$dir" "$xwindow"

if [ -e "$dir/Zarvo.dat" ]; then echo "the game created a data file"; exit 1; fi
echo "smoke: window shown, closed cleanly, no data file created"
