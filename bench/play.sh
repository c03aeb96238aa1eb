#!/usr/bin/env bash
# Plays a whole one-player game of the real program under Xvfb, by mouse or by keys only, and
# leaves screenshots of the first roll, the results and the full card in a folder:
#   bash bench/play.sh mouse /tmp/zarvo-mouse
#   bash bench/play.sh keys /tmp/zarvo-keys
# Turn k always scores category k, so the card fills in thirteen turns. "y" answers Yes in a
# message box ("No dice selected.", "Take a zero?", the keyboard offer) and is ignored by the
# game window when no box is open. The offer of another game is answered No, which ends the
# program as a player would. Needs xdotool and imagemagick besides the build.
set -euo pipefail
mode=${1:?mouse or keys}
out=${2:-/tmp/zarvo-$mode}
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
mkdir -p "$out"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$build/bin/Zarvo" "$build/bin/Zarvo.dat" "$work/"   # a fresh data file: the results are kept

xvfb-run -a -s "-screen 0 800x600x24" bash -s "$mode" "$work" "$build/bench/xwindow" "$out" <<'INNER'
set -euo pipefail
mode=$1; work=$2; xwindow=$3; out=$4
"$work/Zarvo" & pid=$!
"$xwindow" wait Zarvo 20 >/dev/null
id=$(xdotool search --onlyvisible --name '^Zarvo$' | head -1)
xdotool windowfocus --sync "$id"
eval "$(xdotool getwindowgeometry --shell "$id")"
menu=$((HEIGHT - 304))                 # the client area is 304 pixels high, below the menu bar
key() { xdotool key --delay 60 "$@"; sleep 0.15; }
click() { xdotool mousemove $((X + $1)) $((Y + menu + $2)) click "${3:-1}"; sleep 0.15; }
shot() { import -window root "$out/$1.png"; }
# With no window manager a new box does not take the keys by itself: it is given them.
answer() {   # title, picture, key
  "$xwindow" wait "$1" 20 >/dev/null
  xdotool windowfocus --sync "$(xdotool search --onlyvisible --name "^$1\$" | head -1)"
  shot "$2"; key "$3"
}

# Pixel places in the client area: a die column between the rows, and the middle of a cell
# (lblLeft at 720 twips, lblRight at 2520, inside fraScoreboard at 120, 1920).
cell() { local c=$1 x y; if [ "$c" -le 6 ]; then x=56; y=$((18 + 16 * (c - 1))); else x=176; y=$((18 + 16 * (c - 7))); fi
         click $((8 + x + 12)) $((128 + y + 8)); }

[ "$mode" = keys ] && { key Down; key y; }       # the offer: switch keyboard use on
for category in $(seq 13); do
  if [ "$mode" = mouse ]; then click 150 115; else key Return; fi     # roll
  sleep 1.0
  [ "$category" = 1 ] && shot first-roll
  if [ "$mode" = mouse ]; then click 40 40 3; else key Return; fi     # accept: right click or Enter
  key y
  if [ "$mode" = mouse ]; then
    cell "$category"
  else
    if [ "$category" -ge 7 ]; then key Right; steps=$((category - 7)); else steps=$((category - 1)); fi
    for _ in $(seq "$steps"); do key Down; done
    key Return
  fi
  key y                                  # a zero question, if one came
done
answer "Zarvo - Results" results Return
answer " Zarvo - New Game" full-card alt+n
wait $pid
INNER
echo "screenshots in $out"
