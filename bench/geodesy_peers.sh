#!/usr/bin/env bash
# Runs the geodesy floor and two well-known tools (cs2cs and cct of Debian's proj-bin) over the same 100,000 points and
# prints the ratios of their times:
#   bench/geodesy_peers.sh [build folder]     default build/bench; build target geodesy_peer of the preset bench first
# "converting": the conversion alone, that is, here the time around the calls, and for the tools the run over all points
# less the run over one point (start and loading), which leaves them the reading and writing of their texts.
# "whole run": from start to end of both processes, texts read and written by both, the loading of the table too.
# Each time is the best of seven runs, taken in turns.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=bench/shortest
source bench/shortest
peer=${1:-build/bench}/bench/geodesy_peer

for tool in cs2cs cct; do
  if ! command -v "$tool" > /dev/null; then
    echo "$tool is missing: install it with 'apt-get install proj-bin'." >&2
    exit 1
  fi
done
if [ ! -x "$peer" ]; then
  echo "$peer is missing: build it with 'cmake --preset bench && cmake --build --preset bench --target geodesy_peer'." >&2
  exit 1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$peer" make "$work"
head -1 "$work/degrees.txt" > "$work/one_degrees.txt"
head -1 "$work/zone_54.txt" > "$work/one_zone_54.txt"

cs2cs_run() { cs2cs -f %.3f +proj=longlat +ellps=bessel +to +proj=utm +zone=54 +ellps=bessel "$1"; }
cct_run() { cct -z 0 -t 0 -d 12 +proj=hgridshift +grids="$work/shift.gsb" "$1"; }

# best <name> <output> <command...>: keeps the smallest wall time (ms) of the command under the name.
declare -A best_ms
best() {
  local name=$1 output=$2 begin end took
  shift 2
  begin=$(date +%s%N)
  "$@" > "$work/$output" 2> "$work/$name.steps"
  end=$(date +%s%N)
  took=$(awk "BEGIN { print ($end - $begin) / 1e6 }")
  keep_best "$name" "$took"
  for step in loading converting; do
    took=$(grep -o "$step [0-9.]*" "$work/$name.steps" | cut -d' ' -f2 || true)
    if [ -n "$took" ]; then keep_best "$name $step" "$took"; fi
  done
}
keep_best() {
  local old=${best_ms[$1]:-}
  if [ -z "$old" ] || awk "BEGIN { exit !($2 < $old) }"; then best_ms[$1]=$2; fi
}

for _ in 1 2 3 4 5 6 7; do
  best utm utm.txt "$peer" utm "$work/zone_54.txt"
  best cs2cs cs2cs.txt cs2cs_run "$work/zone_54.txt"
  best cs2cs_one one.txt cs2cs_run "$work/one_zone_54.txt"
  best tky2jgd tky2jgd.txt "$peer" tky2jgd "$work/TKY2JGD.par" "$work/packed.txt"
  best cct cct.txt cct_run "$work/degrees.txt"
  best cct_one one.txt cct_run "$work/one_degrees.txt"
done

# farthest <ours> <theirs>: the largest difference of the first two columns.
farthest() {
  paste "$work/$1" "$work/$2" | awk '{ for (i = 1; i <= 2; ++i) { d = $i - $(i + 2); if (d < 0) d = -d; if (d > m) m = d } }
    END { if (NR != 100000) { print "lines are missing"; exit 1 } printf "%.3g", m }'
}

report() { # <ours> <theirs> <their one> <difference and unit>
  awk -v ours="${best_ms[$1]}" -v calls="${best_ms["$1 converting"]}" -v theirs="${best_ms[$2]}" -v one="${best_ms[$3]}" \
    -v a="$1" -v b="$2" -v far="$4" 'BEGIN {
      printf "%-8s converting %7.1f ms, %s %7.1f ms: %.1f times as fast\n", a, calls, b, theirs - one, (theirs - one) / calls
      printf "%-8s whole run  %7.1f ms, %s %7.1f ms: %.1f times as fast\n", "", ours, b, theirs, theirs / ours
      printf "%-8s largest difference of the results: %s\n", "", far }'
}

report utm cs2cs cs2cs_one "$(farthest utm.txt cs2cs.txt) m (the single-precision angles and meridian)"
report tky2jgd cct cct_one "$(farthest tky2jgd.txt cct.txt) degrees"
awk -v load="${best_ms["tky2jgd loading"]}" -v one="${best_ms[cct_one]}" 'BEGIN {
  printf "loading  the parameter file of 392,323 rows %.1f ms; cct with its binary grid and one point %.1f ms\n", load, one }'

# against <theirs> <their one>: what the tool takes for the points themselves.
against() { awk -v all="${best_ms[$1]}" -v one="${best_ms[$2]}" 'BEGIN { print all - one }'; }
told 'latlon_to_utm_auto, 100,000 points converted, beside cs2cs' "$(quotient "$(against cs2cs cs2cs_one)" "${best_ms["utm converting"]}")" 10
told 'the same, whole processes with the texts of both' "$(quotient "${best_ms[cs2cs]}" "${best_ms[utm]}")" ''
told 'tky2jgd, 100,000 points on 392,323 rows, beside cct' "$(quotient "$(against cct cct_one)" "${best_ms["tky2jgd converting"]}")" 1
told 'the same, whole processes with loading and texts' "$(quotient "${best_ms[cct]}" "${best_ms[tky2jgd]}")" ''
