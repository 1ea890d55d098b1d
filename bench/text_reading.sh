#!/usr/bin/env bash
# 100 MB of code page 932 text read by iconv and by this program, in turn, five times each; prints the best times and
# their ratio.
#   cmake --preset bench && cmake --build --preset bench --target text_bench && bench/text_reading.sh
set -euo pipefail
program=${1:-$(dirname "$0")/../build/bench/bench/text_bench}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

"$program" make "$folder/text" 100
iconv -f CP932 -t UTF-8 "$folder/text" > "$folder/iconv.txt"
"$program" read "$folder/text" "$folder/ours.txt"
cmp "$folder/iconv.txt" "$folder/ours.txt"

# Runs a command and keeps the shortest of its times, in milliseconds, in the variable named first.
shortest() {
  local -n best=$1
  local start
  shift
  start=$(date +%s%N)
  "$@" > /dev/null
  local took=$((($(date +%s%N) - start) / 1000000))
  ((took < best)) && best=$took
  return 0
}

iconv_ms=999999 ours_ms=999999 lines_ms=999999
for _ in 1 2 3 4 5; do
  shortest iconv_ms iconv -f CP932 -t UTF-8 -o /dev/null "$folder/text"
  shortest ours_ms "$program" read "$folder/text" /dev/null
  shortest lines_ms "$program" lines "$folder/text"
done
size=$(stat -c %s "$folder/text")
echo "$((size / 1000000)) MB of text, the same $(stat -c %s "$folder/iconv.txt") bytes from both"
echo "iconv                 $iconv_ms ms"
echo "decoded               $ours_ms ms, $(awk "BEGIN { printf \"%.2f\", $ours_ms / $iconv_ms }") of iconv's time"
echo "decoded and in lines  $lines_ms ms, $(awk "BEGIN { printf \"%.2f\", $lines_ms / $iconv_ms }") of iconv's time"
