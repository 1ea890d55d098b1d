#!/usr/bin/env bash
# 15,000 observations painted by this program and by a plain loop of the toolkit's own calls over the same sheets, and a
# pan step over them; the shortest of seven rounds of each, in turns.
#   cmake --preset bench && cmake --build --preset bench --target registry_repaint_bench && bench/repaint_peers.sh
set -euo pipefail
# shellcheck source=bench/shortest
source "$(dirname "$0")/shortest"
program=${1:-$(dirname "$0")/../build/bench/bench/registry_repaint_bench}

rounds=$(mktemp)
trap 'rm -f "$rounds"' EXIT
"$program" --benchmark_format=csv --benchmark_repetitions=7 --benchmark_min_time=0.3 \
  --benchmark_enable_random_interleaving=true > "$rounds" 2> /dev/null
# least <name>: the shortest round in ms (the rows of a round, not those of the mean, have the bare name).
least() {
  local took
  took=$(awk -F, -v name="\"$1/real_time\"" '$1 == name && (best == "" || $3 < best) { best = $3 } END { print best }' "$rounds")
  [ -n "$took" ] || { echo "$program told nothing of $1" >&2; exit 1; }
  printf '%s' "$took"
}
for sizes in 2 10; do
  words='marks of size 2'
  [ "$sizes" = 2 ] || words='marks of sizes 1 to 10'
  plain=$(least "plain_loop/$sizes") ours=$(least "repaint/$sizes") pan=$(least "pan_step/$sizes")
  printf '%s: plain loop %.1f ms, repaint %.1f ms (%.2f of it), pan step %.2f ms\n' "$words" "$plain" "$ours" \
    "$(quotient "$ours" "$plain")" "$pan"
  told "15,000 observations painted, $words, beside a plain loop" "$(quotient "$plain" "$ours")" 2
  told "a pan step over them, $words, in the 8 ms of a step" "$(quotient 8 "$pan")" 1
done
