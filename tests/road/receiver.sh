#!/usr/bin/env bash
# A receiver walks over the map: its mark is seen where it is, moves, takes the map along to the next sheet; silent, it
# is told as lost, pulled, as gone, and put back it is followed again.
source "$(dirname -- "${BASH_SOURCE[0]}")/road.sh"
source "$(dirname -- "${BASH_SOURCE[0]}")/sheet.sh"
source "$(dirname -- "${BASH_SOURCE[0]}")/instruments.sh"

west_colour='#F0D8D8' east_colour='#D8F0D8'
light_closed='#808890' light_fix='#1E8449' light_lost='#B03020'

sheets_make() {
  rm "$program/map/field.bmp" "$program/map/field.set"
  convert -size 600x480 "xc:$west_colour" -type TrueColor "BMP3:$program/map/533856.bmp"
  convert -size 600x480 "xc:$east_colour" -type TrueColor "BMP3:$program/map/533857.bmp"
  as_file >"$program/ZUMEI.CSV" <<'END'
533856,霧沢,KIRISAWA,,,,,354500.0,1385230.0,354511.6,1385218.3,,355000.0,1384500.0,355011.5,1384448.2
533857,奥鳴沢,OKUNARUSAWA,,,,,354500.0,1390000.0,354511.6,1385948.3,,355000.0,1385230.0,355011.5,1385218.2
END
  sheet_colour=$west_colour sheet_west=138.75 sheet_high=300
}

# sentence <text>: with its checksum, the exclusive or of all bytes between "$" and "*".
sentence() {
  local i sum=0
  for ((i = 0; i < ${#1}; ++i)); do sum=$((sum ^ $(printf '%d' "'${1:i:1}"))); done
  printf '< $%s*%02X\n' "$1" $sum
}

# stay <seconds> <east> <north>: bursts of a receiver at that place, two a second. Degrees and minutes as it sends them.
stay() {
  local place burst
  place=$(awk -v east="$2" -v north="$3" 'BEGIN {
    printf "%02d%07.4f,N,%03d%07.4f,E", north, (north - int(north)) * 60, east, (east - int(east)) * 60 }')
  burst=$(
    sentence "GPGGA,102000.00,$place,1,08,1.1,120.4,M,36.2,M,,"
    sentence 'GPGSA,A,3,09,05,14,26,18,22,30,15,,,,,1.9,1.1,1.5'
    sentence "GPRMC,102000.00,A,$place,2.6,45.0,151108,,"
    echo 'wait 500'
  )
  for _ in $(seq $(($1 * 2 * slower))); do printf '%s\n' "$burst"; done
}

# The light in the status bar has this colour.
light_is() {
  look "$road/light.ppm"
  convert "$road/light.ppm" -crop 1366x26+0+742 +repage "$road/bar.ppm"
  [ -n "$(box_of "$road/bar.ppm" "$1")" ]
}

# mark_is_at <east> <north>: black cross lines whose middle is the pixel of that place, give or take one and a half. The
# places stand in the middles of the grid's cells, so that no line of the grid comes near.
mark_is_at() {
  local x y left top width height
  read -r x y <<<"$(pixel_of "$1" "$2")"
  look "$road/mark.ppm"
  convert "$road/mark.ppm" -crop "43x43+$((sheet_left + x - 21))+$((sheet_top + y - 21))" +repage -fuzz 40% \
    -fill white +opaque black -fill red -opaque black "$road/cross.ppm"
  read -r left top width height <<<"$(box_of "$road/cross.ppm" red)"
  [ -n "${height:-}" ] || return 1
  awk -v x="$left" -v y="$top" -v wide="$width" -v high="$height" 'BEGIN {
    x += (wide - 1) / 2 - 21; y += (high - 1) / 2 - 21
    exit !(wide > 28 && high > 28 && x * x <= 2.25 && y * y <= 2.25) }'
}
mark_is_gone() { ! mark_is_at "$@"; }

only_east_sheet() {
  look "$road/east.ppm"
  [ -z "$(box_of "$road/east.ppm" "$west_colour")" ] && [ -n "$(box_of "$road/east.ppm" "$east_colour")" ]
}

walk() {
  until_true 15 "the mark is not at the first place" mark_is_at 138.79375 35.804166667
  until_true 10 "the light does not tell of a position" light_is "$light_fix"
  until_true 20 "the mark did not move to the second place" mark_is_at 138.81875 35.795833333
  until_true 5 "the mark stays at the first place too" mark_is_gone 138.79375 35.804166667
}

enter_next_sheet() {
  until_true 20 "the next sheet was not opened" only_east_sheet
  sheet_west=138.875
  until_true 10 "the mark is not on the next sheet" mark_is_at 138.90625 35.804166667
}

# Behind the last place the receiver stays silent, and then it is pulled.
fall_silent_and_pull() {
  until_true 30 "a silent receiver is not told as lost" light_is "$light_lost"
  mark_is_at 138.90625 35.804166667 || fail "the mark of a lost receiver does not stay at its last place"
  unplug
  until_true 10 "a pulled receiver is not told as gone" light_is "$light_closed"
  mark_is_at 138.90625 35.804166667 || fail "the mark of a pulled receiver does not stay at its last place"
}

put_back() {
  stay 60 138.93125 35.7875 >"$road/back"
  plug_in 04 emulator_gps --conversation "$road/back"
  until_true 15 "a receiver that was put back is not followed" mark_is_at 138.93125 35.7875
  until_true 5 "the light does not tell of a position again" light_is "$light_fix"
}

display_start
field_make English
sheets_make
{
  stay 7 138.79375 35.804166667
  stay 6 138.81875 35.795833333
  stay 8 138.90625 35.804166667
} >"$road/walk"
program_start
sheet_open
until_true 5 "the light is not that of a closed port" light_is "$light_closed"
keys ctrl+g
plug_in 04 emulator_gps --conversation "$road/walk"
walk
enter_next_sheet
fall_silent_and_pull
put_back
keys ctrl+g
until_true 10 "the mark stays after the receiver was switched off" mark_is_gone 138.93125 35.7875
until_true 5 "the light is not that of a closed port" light_is "$light_closed"
program_quit
