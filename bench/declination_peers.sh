#!/usr/bin/env bash
# Runs the declination and a well-known tool (mgd77magref of Debian's gmt) over the same 10,000 points and prints the ratios
# of their times:
#   bench/declination_peers.sh [build folder]     default build/bench; build target declination_peer of the preset bench first
# "synthesis": the calculation alone, that is, here the time around the calls, and for the tool the run over all points less
# the run over one point (start and loading), which leaves it the reading and writing of its texts.
# "whole run": from start to end of both processes, coefficients and points read and declinations written by both.
# Times are processor times, so that other work on the machine counts little; each is the best of nine runs, taken in turns. The tool takes a later revision of the model for the same year, so the
# declinations differ by hundredths of a degree.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=bench/shortest
source bench/shortest
peer=${1:-build/bench}/bench/declination_peer
count=10000

if ! command -v gmt > /dev/null; then
  echo "gmt is missing: install it with 'apt-get install --no-install-recommends gmt'." >&2
  exit 1
fi
if [ ! -x "$peer" ]; then
  echo "$peer is missing: build it with 'cmake --preset bench && cmake --build --preset bench --target declination_peer'." >&2
  exit 1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
awk -v count="$count" 'BEGIN { srand(1); for (i = 0; i < count; ++i)
  printf "%.6f %.6f 0 2005.0\n", 123 + 23 * rand(), 24 + 22 * rand() }' > "$work/points.txt"
head -1 "$work/points.txt" > "$work/one.txt"

ours() { "$peer" tests/golden/observations "$work/$1"; }
theirs() { (cd "$work" && gmt mgd77magref "$1" -A+y -Fd/0 --FORMAT_FLOAT_OUT=%.6f); }

# best <name> <output> <command...>: keeps the smallest processor time (ms) of the command under the name, and the smallest
# of the step that it tells.
declare -A best_ms
keep_best() {
  local old=${best_ms[$1]:-}
  if [ -z "$old" ] || awk "BEGIN { exit !($2 < $old) }"; then best_ms[$1]=$2; fi
}
TIMEFORMAT='%3U %3S'
best() {
  local name=$1 output=$2 step
  shift 2
  { time "$@" > "$work/$output" 2> "$work/$name.steps"; } 2> "$work/$name.time"
  keep_best "$name" "$(awk '{ print ($1 + $2) * 1000 }' "$work/$name.time")"
  step=$(grep -o 'synthesis [0-9.]*' "$work/$name.steps" | cut -d' ' -f2 || true)
  if [ -n "$step" ]; then keep_best "$name synthesis" "$step"; fi
}

for _ in 1 2 3 4 5 6 7 8 9; do
  best ours ours.out ours points.txt
  best theirs theirs.out theirs points.txt
  best one one.out theirs one.txt
done

paste "$work/ours.out" "$work/theirs.out" | awk -v count="$count" -v ours="${best_ms[ours]}" \
  -v calls="${best_ms[ours synthesis]}" -v theirs="${best_ms[theirs]}" -v one="${best_ms[one]}" '
  { d = $1 - $2; if (d < 0) d = -d; if (d > far) far = d; if (NF == 2) ++lines }
  END {
    if (lines != count) { print "lines are missing"; exit 1 }
    printf "synthesis %8.2f ms, mgd77magref %8.2f ms: %.1f times as fast\n", calls, theirs - one, (theirs - one) / calls
    printf "whole run %8.2f ms, mgd77magref %8.2f ms: %.1f times as fast\n", ours, theirs, theirs / ours
    printf "largest difference of the declinations: %.4f degrees\n", far
  }'
their_points=$(awk -v all="${best_ms[theirs]}" -v one="${best_ms[one]}" 'BEGIN { print all - one }')
told 'declination at 10,000 points, beside gmt mgd77magref' "$(quotient "$their_points" "${best_ms["ours synthesis"]}")" 1
told 'the same, whole processes' "$(quotient "${best_ms[theirs]}" "${best_ms[ours]}")" 1
