#!/usr/bin/env bash
# Measures what a desktop player notices, under Xvfb, after a build (bash scripts/build.sh):
# start-up to the first shown window and peak memory (against a bare Qt window, and one showing
# a single label, in the same run), in English and in German, with every language installed
# beside the game; idle CPU over 10 s while the game waits for a roll, and the real length of a
# roll.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
bin=$build/bin
xwindow=$build/bench/xwindow
bench=$build/bench
runs=${RUNS:-15}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# A copy of the program's folder (game, help, translations and data file): start-up reads real
# records and finds every language, and no run of the measurement writes into the build.
cp -r "$bin"/. "$work/"

xvfb-run -a -s "-screen 0 1024x768x24" bash -s "$work" "$bench" "$xwindow" "$runs" <<'INNER'
set -euo pipefail
work=$1; bench=$2; xwindow=$3; runs=$4
median() { sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }
cpu_ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }

startup() {   # window title, program and its arguments -> "ms peak_kB"
  local title=$1 start pid seen ms
  shift
  start=$(date +%s%N)
  "$@" & pid=$!
  seen=$("$xwindow" wait "$title" 20)
  ms=$(awk -v d=$(( seen - start )) 'BEGIN {printf "%.1f", d / 1e6}')
  sleep 0.5
  echo "$ms $(awk '/VmHWM/ {print $2}' /proc/$pid/status)"
  kill $pid; wait $pid 2>/dev/null || true
  sleep 0.2   # the display server tidies up after the program before the next one starts
}

# The bound is against the bare window; the window with one label shows what no window with
# text gets below.
names=("Zarvo (en)" "Zarvo (de)" "Bare window" "Window with one label")
run() {   # program number
  case $1 in
    0) LANGUAGE=en startup Zarvo "$work/Zarvo" ;;
    1) LANGUAGE=de startup Zarvo "$work/Zarvo" ;;
    2) LANGUAGE=en startup Bare "$bench/zarvo_bench_bare" ;;
    3) LANGUAGE=en startup Label "$bench/zarvo_bench_bare" "Player 1" ;;
  esac
}
# The programs take turns, so that a passing load on the machine weighs on each alike.
for _ in $(seq "$runs"); do
  for i in "${!names[@]}"; do run "$i" >> "$work/results.$i"; done
done
figure() { cut -d' ' -f"$1" "$work/results.$2" | median; }   # column (1 ms, 2 kB), program
times() { awk -v a="$1" -v b="$2" 'BEGIN {printf "%.2f", a / b}'; }
for i in "${!names[@]}"; do
  ms=$(figure 1 "$i"); kb=$(figure 2 "$i")
  echo "${names[i]}: start-up to first shown window, median of $runs: $ms ms ($(times "$ms" "$(figure 1 2)")×" \
       "the bare window); peak memory (VmHWM), median: $kb kB ($(times "$kb" "$(figure 2 2)")×)"
done

"$work/Zarvo" & pid=$!
"$xwindow" wait Zarvo 20 >/dev/null
sleep 1
before=$(cpu_ticks $pid); sleep 10; after=$(cpu_ticks $pid)
hz=$(getconf CLK_TCK)
echo "Zarvo idle while waiting for a roll: $(( after - before )) CPU ticks of 1/$hz s in 10 s" \
     "($(awk -v t=$(( after - before )) -v hz="$hz" 'BEGIN {printf "%.2f", 100 * t / hz / 10}')% of one core)"
"$xwindow" close Zarvo; wait $pid || true

"$bench/zarvo_bench_roll"
INNER
