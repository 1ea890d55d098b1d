# Sourced behind road.sh: a program folder with one sheet of known corners and a project with one registration file, and
# where a place of the sheet stands on the display. Positions are in the units of the records, degrees x 100000.
# shellcheck shell=bash

project=$road/project
registry=$project/chisou_men/points.csv
sheet_colour='#F0F0E0'
# Degrees of the lower left corner, and the sheet's height in seconds, which is always 500 pixels. This sheet is 337.5
# seconds wide, so that its corners are whole units.
sheet_west=138.875 sheet_south=35.75 sheet_high=225
sheet_left=0 sheet_top=0

# The basic settings of a person whose registration file is points.csv.
settings_make() {
  printf '%s\n' "$program" '' "$project" 04 9600 True False False True False sheet1 '' '' '' '' True False \
    points.csv 1000 1000 500 100 6000 6000 "$program\\map" True False | as_file >"$program/settei.ini"
}

# field_make <language>: everything up to the first start.
field_make() {
  program_folder_make
  mkdir -p "$program/map" "$project/chisou_men"
  echo "$1" | as_file >"$program/Language.set"
  cp "$(dirname -- "${BASH_SOURCE[0]}")/../golden/observations/igrf10.coef" "$program/igrf10.coef"
  convert -size 600x480 "xc:$sheet_colour" -type TrueColor "BMP3:$program/map/field.bmp"
  echo '138,52,30,35,48,45,138,58,7.5,35,45,0' | as_file >"$program/map/field.set"
  : >"$registry"
  settings_make
}

sheet_is_up() {
  look "$road/shown.ppm"
  [ -n "$(box_of "$road/shown.ppm" "$sheet_colour")" ]
}

# Opens the only sheet of the list and finds its upper left corner on the display. The line around the sheet covers the
# first pixel of it.
sheet_open() {
  window_wait "$main_title"
  keys ctrl+m Home
  until_true 20 "Home did not open the sheet" sheet_is_up
  mouse_to 10 760
  wait_still "$road/sheet.ppm"
  read -r sheet_left sheet_top _ _ <<<"$(box_of "$road/sheet.ppm" "$sheet_colour")"
  sheet_left=$((sheet_left - 1)) sheet_top=$((sheet_top - 1))
}

# From seconds to pixels. A second of longitude is shorter than one of latitude, by the radii of curvature of the Bessel
# ellipsoid at the whole degree of the sheet's mean latitude.
sheet_scale='function pixels_north(seconds) { return seconds * 500 / high }
function pixels_east(seconds,  f, e2, w, latitude) {
  f = 1 / 299.152813; e2 = f * (2 - f); latitude = 35 * atan2(0, -1) / 180; w = 1 - e2 * sin(latitude) ^ 2
  return seconds * 500 / high * cos(latitude) * w / (1 - e2)
}'

# place_at <pixel right of the sheet's corner> <pixel below it>: the position there as a record holds it, "X,Y".
place_at() {
  awk -v x="$1" -v y="$2" -v west="$sheet_west" -v south="$sheet_south" -v high="$sheet_high" "$sheet_scale"'
    function printed(number) { number = sprintf("%.2f", number); sub(/0$/, "", number); return number }
    BEGIN {
      print printed(1e5 * (west + x / pixels_east(3600))) "," printed(1e5 * (south + (500 - y) / pixels_north(3600)))
    }'
}

# pixel_of <degrees east> <degrees north>: the pixel next to it, right of the sheet's corner and below it.
pixel_of() {
  awk -v east="$1" -v north="$2" -v west="$sheet_west" -v south="$sheet_south" -v high="$sheet_high" "$sheet_scale"'
    BEGIN { printf "%.0f %.0f\n", pixels_east((east - west) * 3600), 500 - pixels_north((north - south) * 3600) }'
}

# A click and a move to a pixel counted from the sheet's corner.
sheet_click() { click_at $((sheet_left + $1)) $((sheet_top + $2)); }
sheet_move() { mouse_to $((sheet_left + $1)) $((sheet_top + $2)); }

# pixels_near <colour> <pixel x> <pixel y>: how many pixels of about that colour stand within 30 pixels of one of the
# sheet, as the display is now. (The edges of lines are soft.)
pixels_near() {
  look "$road/near.ppm"
  convert "$road/near.ppm" -crop "60x60+$((sheet_left + $2 - 30))+$((sheet_top + $3 - 30))" +repage -alpha off \
    -fuzz 15% -fill black +opaque "$1" -fill white -opaque "$1" -format '%[fx:round(mean*w*h)]' info:-
}
# some_near <colour> <pixel x> <pixel y>, none_near: is there any?
some_near() { [ "$(pixels_near "$@")" -gt 3 ]; }
none_near() { [ "$(pixels_near "$@")" -eq 0 ]; }

file_is() { cmp -s "$1" "$2"; }
