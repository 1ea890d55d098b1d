#!/usr/bin/env bash
# 100 MB of code page 932 text read by iconv and by this program, in turn, five times each; prints the best times and
# their ratio.
#   cmake --preset bench && cmake --build --preset bench --target text_bench && bench/text_peers.sh
set -euo pipefail
# shellcheck source=bench/shortest
source "$(dirname "$0")/shortest"
program=${1:-$(dirname "$0")/../build/bench/bench/text_bench}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

"$program" make "$folder/text" 100
iconv -f CP932 -t UTF-8 "$folder/text" > "$folder/iconv.txt"
"$program" read "$folder/text" "$folder/ours.txt"
cmp "$folder/iconv.txt" "$folder/ours.txt"

iconv_time=99999999 ours_time=99999999 lines_time=99999999
for _ in 1 2 3 4 5; do
  shortest iconv_time iconv -f CP932 -t UTF-8 -o /dev/null "$folder/text"
  shortest ours_time "$program" read "$folder/text" /dev/null
  shortest lines_time "$program" lines "$folder/text"
done
size=$(stat -c %s "$folder/text")
echo "$((size / 1000000)) MB of text, the same $(stat -c %s "$folder/iconv.txt") bytes from both"
echo "iconv                 $((iconv_time / 100)) ms"
echo "decoded               $((ours_time / 100)) ms, $(awk "BEGIN { printf \"%.2f\", $ours_time / $iconv_time }") of iconv's time"
echo "decoded and in lines  $((lines_time / 100)) ms, $(awk "BEGIN { printf \"%.2f\", $lines_time / $iconv_time }") of iconv's time"
told '100 MB of code page 932 to UTF-8, beside iconv' "$(quotient "$iconv_time" "$ours_time")" 1
told 'the same, into separate lines' "$(quotient "$iconv_time" "$lines_time")" ''
