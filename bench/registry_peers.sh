#!/usr/bin/env bash
# A registry of 15,000 records with 20,000 vertices read, and read and saved, by this program, and turned from CSV to
# CSV by ogr2ogr (Debian's gdal-bin), in turn, seven times each; prints the best times of whole processes and the ratios.
#   cmake --preset bench && cmake --build --preset bench --target registry_bench && bench/registry_peers.sh
set -euo pipefail
# shellcheck source=bench/shortest
source "$(dirname "$0")/shortest"
program=${1:-$(dirname "$0")/../build/bench/bench/registry_bench}
if ! command -v ogr2ogr > /dev/null; then
  echo "ogr2ogr is missing: install it with 'apt-get install gdal-bin'." >&2
  exit 1
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

"$program" make "$folder/tani.csv"
"$program" copy "$folder/tani.csv" "$folder/ours.csv" > /dev/null
cmp "$folder/tani.csv" "$folder/ours.csv"

theirs() {
  rm -f "$folder/theirs.csv"
  ogr2ogr -f CSV "$folder/theirs.csv" "$folder/tani.csv" -oo HEADERS=NO
}

read_time=9999999 copy_time=9999999 ogr_time=9999999
for _ in 1 2 3 4 5 6 7; do
  shortest ogr_time theirs
  shortest read_time "$program" read "$folder/tani.csv"
  shortest copy_time "$program" copy "$folder/tani.csv" "$folder/ours.csv"
done
lines=$(tail -n +2 "$folder/theirs.csv" | wc -l)
[ "$lines" = 15000 ] || { echo "ogr2ogr wrote $lines lines" >&2; exit 1; }

awk -v read="$read_time" -v copy="$copy_time" -v ogr="$ogr_time" -v size="$(stat -c %s "$folder/tani.csv")" 'BEGIN {
  printf "%.1f MB, 15,000 records, 20,000 vertices\n", size / 1e6
  printf "ogr2ogr, CSV to CSV  %7.1f ms\n", ogr / 100
  printf "read                 %7.1f ms, %.1f times as fast\n", read / 100, ogr / read
  printf "read and saved       %7.1f ms, %.1f times as fast\n", copy / 100, ogr / copy
}'
told '15,000 records read, beside ogr2ogr from CSV to CSV' "$(quotient "$ogr_time" "$read_time")" 3
told '15,000 records read and saved, beside ogr2ogr from CSV to CSV' "$(quotient "$ogr_time" "$copy_time")" 3
