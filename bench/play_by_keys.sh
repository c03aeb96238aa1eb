#!/usr/bin/env bash
# Plays a whole one-player game of the real program under Xvfb with key presses only, and
# leaves screenshots of the first roll and of the full card in the given folder:
#   bash bench/play_by_keys.sh /tmp/zarvo-keys
# The first Down brings the keyboard offer (y: Yes); each turn Enter rolls, Enter accepts
# (y: Yes to "No dice selected."), the arrows bring the cursor to the turn's own category,
# Enter scores it, and y answers "Take a zero?" when it comes (and is ignored otherwise).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
out=${1:-/tmp/zarvo-keys}
mkdir -p "$out"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$root/build/bin/Zarvo" "$work/"

xvfb-run -a -s "-screen 0 800x600x24" bash -s "$work" "$root/build/tests/smoke/xwindow" "$out" <<'INNER'
set -euo pipefail
work=$1; xwindow=$2; out=$3
"$work/Zarvo" & pid=$!
"$xwindow" wait Zarvo 20 >/dev/null
id=$(xdotool search --onlyvisible --name '^Zarvo$' | head -1)
xdotool windowfocus --sync "$id"
key() { xdotool key --delay 60 "$@"; sleep 0.15; }
shot() { import -window root "$out/$1.png"; }

key Down; key y                       # the offer: switch keyboard use on
for category in $(seq 13); do
  key Return; sleep 1.0                # roll, and let it rest
  [ "$category" = 1 ] && shot first-roll
  key Return; key y                    # accept the dice
  if [ "$category" -ge 7 ]; then key Right; steps=$((category - 7)); else steps=$((category - 1)); fi
  for _ in $(seq "$steps"); do key Down; done
  key Return; key y                    # score; y answers a zero question if one came
done
shot full-card
"$xwindow" close Zarvo
wait $pid
INNER
echo "screenshots in $out"
