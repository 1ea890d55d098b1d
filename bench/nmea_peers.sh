#!/usr/bin/env bash
# A log of 1,000,000 NMEA sentences, 500,000 points, read as a route by this program and read to its own points by
# gpsbabel (Debian's gpsbabel), in turn, five times each; prints the best times of whole processes, their ratio, and
# the memory of both at their peaks where GNU time is there to tell it.
#   cmake --preset bench && cmake --build --preset bench --target nmea_bench && bench/nmea_peers.sh
set -euo pipefail
# shellcheck source=bench/shortest
source "$(dirname "$0")/shortest"
program=${1:-$(dirname "$0")/../build/bench/bench/nmea_bench}
if ! command -v gpsbabel > /dev/null; then
  echo "gpsbabel is missing: install it with 'apt-get install gpsbabel'." >&2
  exit 1
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
log=$folder/walk.nmea

"$program" make "$log"
theirs=$(gpsbabel -t -i nmea -f "$log" -o csv -F - | wc -l)
ours=$("$program" read "$log")
[ "$ours" = "$theirs points" ] || { echo "$ours here, $theirs points of gpsbabel" >&2; exit 1; }

ours_time=99999999 theirs_time=99999999
for _ in 1 2 3 4 5; do
  shortest theirs_time gpsbabel -t -i nmea -f "$log"
  shortest ours_time "$program" read "$log"
done
echo "$(($(stat -c %s "$log") / 1000000)) MB, 1,000,000 sentences, $ours from both"
echo "gpsbabel  $((theirs_time / 100)) ms"
echo "read      $((ours_time / 100)) ms, $(awk "BEGIN { printf \"%.1f\", $theirs_time / $ours_time }") times as fast"
told '1,000,000 NMEA sentences read, beside gpsbabel' "$(quotient "$theirs_time" "$ours_time")" 1
if [ -x /usr/bin/time ]; then
  echo "peak memory: gpsbabel $(/usr/bin/time -f %M gpsbabel -t -i nmea -f "$log" 2>&1 > /dev/null | tail -1) kB," \
    "read $(/usr/bin/time -f %M "$program" read "$log" 2>&1 > /dev/null | tail -1) kB"
fi
