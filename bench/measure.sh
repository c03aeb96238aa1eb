#!/usr/bin/env bash
# Measures what a desktop player notices, under Xvfb, after a build (bash scripts/build.sh):
# start-up to the first shown window and peak memory (against a bare Qt window in the same
# run), in English and in German, with every language installed beside the game; idle CPU
# over 10 s while the game waits for a roll, and the real length of a roll.
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

startup() {   # program, window title -> "ms peak_kB"
  local start pid seen ms
  start=$(date +%s%N)
  "$1" & pid=$!
  seen=$("$xwindow" wait "$2" 20)
  ms=$(awk -v d=$(( seen - start )) 'BEGIN {printf "%.1f", d / 1e6}')
  sleep 0.5
  echo "$ms $(awk '/VmHWM/ {print $2}' /proc/$pid/status)"
  kill $pid; wait $pid 2>/dev/null || true
  sleep 0.2   # the display server tidies up after the program before the next one starts
}

# The programs take turns, so that a passing load on the machine weighs on each alike.
programs=("Zarvo:en:$work/Zarvo" "Zarvo:de:$work/Zarvo" "Bare:en:$bench/zarvo_bench_bare")
for _ in $(seq "$runs"); do
  for i in "${!programs[@]}"; do
    title=${programs[i]%%:*}; rest=${programs[i]#*:}; language=${rest%%:*}; exe=${rest#*:}
    LANGUAGE=$language startup "$exe" "$title" >> "$work/results.$i"
  done
done
for i in "${!programs[@]}"; do
  title=${programs[i]%%:*}; rest=${programs[i]#*:}; language=${rest%%:*}
  echo "$title ($language): start-up to first shown window, median of $runs: $(cut -d' ' -f1 "$work/results.$i" | median) ms;" \
       "peak memory (VmHWM), median: $(cut -d' ' -f2 "$work/results.$i" | median) kB"
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
