#!/usr/bin/env bash
# One measurement from the clinometer to its drawn symbol: downloaded, turned to true north, ticked, written into the
# registry, seen on the map. The declination comes from a computation of its own, and so does the line's direction.
source "$(dirname -- "${BASH_SOURCE[0]}")/road.sh"
source "$(dirname -- "${BASH_SOURCE[0]}")/sheet.sh"
source "$(dirname -- "${BASH_SOURCE[0]}")/instruments.sh"
command -v python3 >/dev/null || { echo "SKIPPED: python3 is not installed"; exit 77; }

clinometer_title='^Read clinometer data$'
time='2008/11/15 10:20:30'
# The plane N50W 35W at 138 55.2 east, 35 46.8 north.
east=138.92 north=35.78 strike=50

# field_declination <degrees north> <degrees east>: to the tenth of a degree that the dialog prints.
field_declination() {
  printf '%.1f\n' \
    "$(python3 "$(dirname -- "${BASH_SOURCE[0]}")/declination.py" "$program/igrf10.coef" "$1" "$2")"
}

memory_make() {
  cat >"$road/memory" <<END
> o999
wait 300
< 011,P,N20W,30E,3,0,0,2008/11/15 10:10:00,1,0,0,V,,,,
< 012,P,N50W,35W,3,0,0,$time,1,0,0,A,3546.8000,N,13855.2000,E
< 013,P,N10E,40E,3,0,0,2008/11/15 10:30:00,1,0,0,A,3547.0000,N,13856.0000,E
< END
END
}

# The declination of the sheet's middle is taken, and kept for the next time.
take_declination() {
  keys alt+m alt+s
  until_true 10 "the declination was not kept" test -s "$program/henkaku.dat"
  echo "$declination" | as_file >"$road/expected"
  same_file "$program/henkaku.dat" "$road/expected"
}

# West of true north the strike N50W becomes as much steeper to the west.
turned_strike() { awk -v strike=$strike -v declination="$declination" 'BEGIN { printf "N%.15gW", strike - declination }'; }

download() {
  keys alt+g
  until_true 20 "no memory came" memory_is_read
  {
    printf '012,P,N50W,35W,3,  ,  ,%s,1,0,0,%s,35W,3,  ,  ,' "$time" "$(turned_strike)"
    printf '%s,3546.8000,N,13855.2000,E,%s\n' "$declination" "$declination"
  } | as_file >"$road/expected"
  sed -n 3p "$program/TMP2.TMP" >"$road/found"
  same_file "$road/found" "$road/expected"
}
memory_is_read() { [ -e "$program/TMP2.TMP" ] && [ "$(wc -l <"$program/TMP2.TMP")" -eq 4 ]; }

# The middle row alone; from the list of saved files and its two buttons the table is the next.
tick_second_row() {
  wait_still "$road/table.ppm"
  keys alt+n alt+f
  keys Tab Tab Tab
  keys ctrl+Home Down space
}

write_into_registry() {
  keys alt+w
  window_wait "$message_title"
  keys Return
  window_wait_gone "$message_title"
  echo " 0 ,13892000.0,3578000.0,,,,N50W,35W,081115-012*012,,circle, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,,,$time,,, 0 ," |
    as_file >"$road/expected"
  same_file "$registry" "$road/expected"
  same_file "$project/chisou_men/csv/points.csv" "$road/expected"
}

# azimuth_seen <picture> <pixel x> <pixel y>: the direction of the line through a pixel of the sheet from its two ends, the
# middles of the blue between 8.5 and 12.5 pixels from there, inside of which stand the mark and the dip's tick.
azimuth_seen() {
  convert "$1" -crop "31x31+$((sheet_left + $2 - 15))+$((sheet_top + $3 - 15))" +repage -depth 8 rgb:- |
    od -An -v -t u1 -w3 | awk '
      { x = (NR - 1) % 31 - 15; y = int((NR - 1) / 31) - 15; far = sqrt(x * x + y * y)
        blue = $3 - ($1 > $2 ? $1 : $2)
        if (blue < 20 || far < 8.5 || far > 12.5) next
        side = y < 0 ? 1 : 2; weight[side] += blue; sum_x[side] += blue * x; sum_y[side] += blue * y }
      END {
        if (!weight[1] || !weight[2]) { print "none"; exit }
        azimuth = atan2(sum_x[1] / weight[1] - sum_x[2] / weight[2], sum_y[2] / weight[2] - sum_y[1] / weight[1])
        printf "%.2f\n", (azimuth * 180 / atan2(0, -1) + 360) % 180 }'
}

see_symbol() {
  local x y expected found
  read -r x y <<<"$(pixel_of $east $north)"
  until_true 10 "no strike line is seen" some_near '#0000FF' "$x" "$y"
  wait_still "$road/symbol.ppm"
  found=$(azimuth_seen "$road/symbol.ppm" "$x" "$y")
  expected=$(awk -v strike=$strike -v declination="$(field_declination $north $east)" \
    'BEGIN { print (360 - strike + declination) % 180 }')
  awk -v found="$found" -v expected="$expected" 'BEGIN { exit !(found != "none" && (found - expected) ^ 2 <= 1) }' ||
    fail "the strike line lies at $found degrees, expected are $expected"
  say "The strike line lies at $found degrees; N50W and the declination make $expected"
}

display_start
field_make English
memory_make
plug_in 05 emulator_clinometer --conversation "$road/memory"
declination=$(field_declination 35.78125 138.921875)
say "Declination of the sheet's middle, worked out apart: $declination"
program_start
sheet_open
keys ctrl+k
window_wait "$clinometer_title"
take_declination
download
tick_second_row
write_into_registry
keys alt+c
window_wait_gone "$clinometer_title"
see_symbol
program_quit
