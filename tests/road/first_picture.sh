#!/usr/bin/env bash
# From an empty program folder to a saved picture: the basic settings, a sheet opened by a click, zoomed, a section line,
# pictures in three formats, the other language, the end, and a second start.
source "$(dirname -- "${BASH_SOURCE[0]}")/road.sh"

sheet_red='#C83232' sheet_green='#32C832' mark='#2832C8'

# A whole sheet of one colour with a square of another in its middle, a tenth of its width.
sheet_make() {
  convert -size 600x480 "xc:$2" -fill "$mark" -draw 'rectangle 270,210 329,269' -type TrueColor "BMP3:$program/map/$1.bmp"
}

answer_first_start() {
  program_start
  window_wait "$message_title"
  [ ! -e "$program/settei.ini" ] || fail "settei.ini is there before it was saved"
  keys Return
  window_wait "$settings_title"
}

# Project folder by its letter, a new folder below it by Enter, a registration file by Tab and the space bar.
fill_settings() {
  keys alt+p
  typed_over "$road"
  keys alt+n
  typed_over "valley one"
  keys Return
  until_true 10 "the project folder was not made" test -d "$road/valley one/chisou_men"
  keys alt+f
  typed_over "points"
  keys Tab space
  until_true 10 "the registration file was not made" test -e "$road/valley one/chisou_men/points.csv"
  keys ctrl+s
  window_wait_gone "$settings_title"
}

check_settings() {
  as_file >"$road/expected" <<END
$program

$road\\valley one
04
9600
True
False
False
True
False
sheet1




True
False
points.csv
1000
1000
500
100
6000
6000
$program\\map
True
False
END
  same_file "$program/settei.ini" "$road/expected"
}


# Rows of the catalogue: the corners of a sheet of 5' x 7'30", the lower right and the upper left in either datum.
catalogue_make() {
  as_file >"$program/ZUMEI.CSV" <<'END'
533856,霧沢,KIRISAWA,,,,,354500.0,1385230.0,354511.6,1385218.3,,355000.0,1384500.0,355011.5,1384448.2
533857,奥鳴沢,OKUNARUSAWA,,,,,354500.0,1390000.0,354511.6,1385948.3,,355000.0,1385230.0,355011.5,1385218.2
END
}

sheet_is_shown() {
  look "$road/shown.ppm"
  [ -n "$(box_of "$road/shown.ppm" "$1")" ]
}

# The names stand in the list when there are some dozens of colours (the edges of letters) where they belong.
list_is_filled() {
  look "$road/list.ppm"
  [ "$(convert "$road/list.ppm" -crop 120x60+8+122 +repage -format %k info:-)" -gt 20 ]
}

# From the start of the process to the names in the list.
timed_start() {
  local began taken limit=$((3000 * slower))
  began=$(milliseconds)
  program_start
  until_true 20 "no main window came up" window_find "$main_title"
  until_true 20 "the list stays empty" list_is_filled
  taken=$(($(milliseconds) - began))
  say "From the start to the filled list: $taken ms"
  [ $taken -lt $limit ] || fail "the start took $taken ms, allowed are $limit"
  window_wait "$main_title"
  wait_still "$road/started.ppm"
  [ -z "$(box_of "$road/started.ppm" "$sheet_red")" ] || fail "a sheet was opened that nobody chose"
}

# The first row with the keyboard; the second, one row below the first row's highlight, with the mouse.
open_by_click() {
  keys ctrl+m Home
  until_true 20 "Home did not open the first sheet" sheet_is_shown "$sheet_red"
  wait_still "$road/first.ppm"
  convert "$road/first.ppm" -crop 180x600+0+100 +repage "$road/left.ppm"
  read -r left top _ height <<<"$(box_of "$road/left.ppm" '#308CC6')"
  [ -n "${height:-}" ] || fail "no row of the list is highlighted"
  click_at $((left + 20)) $((100 + top + height + 2 + height / 2))
  until_true 20 "a click in the list did not open the second sheet" sheet_is_shown "$sheet_green"
  mouse_to 10 760
  wait_still "$road/fitted.ppm"
}

# Each side of the mark in its place gives the scale of the picture: the mark is a tenth of the sheet's width.
mark_width() { box_of "$1" "$mark" | cut -d' ' -f3; }

zoom_and_back() {
  local fitted wheel key
  fitted=$(mark_width "$road/fitted.ppm")
  read -r x y _ _ <<<"$(box_of "$road/fitted.ppm" "$mark")"
  mouse_to "$x" "$y"
  xdotool click 4
  wait_still "$road/wheel.ppm"
  wheel=$(mark_width "$road/wheel.ppm")
  [ "$wheel" -gt $((fitted * 11 / 10)) ] || fail "the wheel did not zoom in: $fitted and $wheel pixels"
  mouse_to 10 760
  keys ctrl+plus
  wait_still "$road/key.ppm"
  key=$(mark_width "$road/key.ppm")
  [ "$key" -gt $((wheel * 11 / 10)) ] || fail "Ctrl++ did not zoom in: $wheel and $key pixels"
  keys ctrl+0
  wait_still "$road/reset.ppm"
  [ "$(pixels_of "$road/reset.ppm")" = "$(pixels_of "$road/fitted.ppm")" ] || fail "Ctrl+0 does not show the first picture again"
  say "A mark of $fitted pixels is $wheel after a wheel step and $key after Ctrl++"
}

# near <what> <found> <expected> <allowed difference>
near() {
  awk -v found="$2" -v expected="$3" -v allowed="$4" \
    'BEGIN { difference = found - expected; exit !(difference <= allowed && -difference <= allowed) }' ||
    fail "$1 is $2, expected is $3, give or take $4"
}

# Metres of 450" of longitude and 300" of latitude by the radii of curvature of the Bessel ellipsoid. A sheet's metres are
# those at the whole degree of its mean latitude.
sheet_metres() {
  awk 'BEGIN {
    a = 6377397.155; e2 = 0.006674372231; radian = atan2(0, -1) / 180; latitude = 35 * radian
    w = 1 - e2 * sin(latitude) ^ 2
    printf "%.1f %.1f\n", a / sqrt(w) * cos(latitude) * 450 / 3600 * radian, a * (1 - e2) / w ^ 1.5 * 300 / 3600 * radian
  }'
}

# From a quarter of the sheet to three quarters, in both directions.
draw_section() {
  local left top width height metres_x metres_y allowed
  read -r left top width height <<<"$(box_of "$road/fitted.ppm" "$sheet_green")"
  read -r metres_x metres_y <<<"$(sheet_metres)"
  keys ctrl+l
  click_at $((left + width / 4)) $((top + height / 4))
  mouse_to $((left + width / 2)) $((top + height / 2))
  [ ! -e "$program/danmen.dat" ] || fail "danmen.dat is written after the first end"
  click_at $((left + width * 3 / 4)) $((top + height * 3 / 4))
  until_true 10 "no danmen.dat was written" test -s "$program/danmen.dat"
  mouse_to 10 760
  sed 's/^\( \|-\)[0-9.]* , [0-9.]* \r$/number pair/' "$program/danmen.dat" | tr -d '\r' >"$road/found"
  printf "A-A',2\nnumber pair\nnumber pair\n" >"$road/expected"
  same_file "$road/found" "$road/expected"
  allowed=$(awk -v metres="$metres_x" -v width="$width" 'BEGIN { print 2 * metres / width }')
  read -r x1 y1 x2 y2 <<<"$(tail -n 2 "$program/danmen.dat" | tr ',\r\n' '   ')"
  near "the first end's X" "$x1" "$(awk "BEGIN { print $metres_x / 4 }")" "$allowed"
  near "the first end's Y" "$y1" "$(awk "BEGIN { print $metres_y * 3 / 4 }")" "$allowed"
  near "the second end's X" "$x2" "$(awk "BEGIN { print $metres_x * 3 / 4 }")" "$allowed"
  near "the second end's Y" "$y2" "$(awk "BEGIN { print $metres_y / 4 }")" "$allowed"
  say "Section line from $x1, $y1 to $x2, $y2 m; clicked within $allowed m"
}

# save_picture <letter of the format> <ending>
save_picture() {
  keys ctrl+s
  window_wait '^(Image File Save|画像保存)$'
  typed_over "view"
  keys "alt+$1"
  wait_still "$road/format.ppm" # a button pressed by its letter is up again after a moment
  keys Return
  window_wait_gone '^(Image File Save|画像保存)$'
  saved="$road/valley one/view.$2"
  [ -s "$saved" ] || fail "no $saved was saved"
}

# differing_pixels <picture> <picture>
differing_pixels() { compare -metric AE "$1" "$2" null: 2>&1 || true; }

# number_at <file> <offset> <bytes>: a little-endian number.
number_at() { od -An -v -t "u$3" -j "$2" -N "$3" --endian=little "$1" | tr -d ' '; }

check_bmp() {
  local width=$1 height=$2 row=$((($1 * 3 + 3) / 4 * 4))
  [ "$(head -c 2 "$saved")" = BM ] || fail "the bmp does not begin with BM"
  local expected="$((54 + row * height)) 54 40 $width $height 1 24 0"
  local found="$(number_at "$saved" 2 4) $(number_at "$saved" 10 4) $(number_at "$saved" 14 4)"
  found+=" $(number_at "$saved" 18 4) $(number_at "$saved" 22 4) $(number_at "$saved" 26 2)"
  found+=" $(number_at "$saved" 28 2) $(number_at "$saved" 30 4)"
  [ "$found" = "$expected" ] || fail "the bmp's header says $found, expected is $expected"
  [ "$(stat -c %s "$saved")" -eq $((54 + row * height)) ] || fail "the bmp has another length than its header says"
}

# The saved png is what stands on the display, to the pixel; the bmp is the same; the jpeg nearly.
save_pictures() {
  local seen_x seen_y saved_x saved_y width height png psnr
  keys ctrl+m  # the frame of a map that has the keyboard is not part of the picture
  wait_still "$road/seen.ppm"
  save_picture p png
  png=$saved
  read -r kind width height <<<"$(identify -format '%m %w %h' "$png")"
  [ "$kind" = PNG ] || fail "$png is a $kind"
  read -r seen_x seen_y _ _ <<<"$(box_of "$road/seen.ppm" "$mark")"
  read -r saved_x saved_y _ _ <<<"$(box_of "$png" "$mark")"
  convert "$road/seen.ppm" -crop "${width}x$height+$((seen_x - saved_x))+$((seen_y - saved_y))" +repage "$road/canvas.ppm"
  [ "$(differing_pixels "$png" "$road/canvas.ppm")" = 0 ] || fail "the saved png is not what the window shows"
  save_picture b bmp
  [ "$(identify -format '%m %w %h' "$saved")" = "BMP3 $width $height" ] || fail "$saved: $(identify "$saved")"
  check_bmp "$width" "$height"
  [ "$(differing_pixels "$png" "$saved")" = 0 ] || fail "the bmp and the png differ"
  save_picture j jpg
  [ "$(identify -format '%m %w %h' "$saved")" = "JPEG $width $height" ] || fail "$saved: $(identify "$saved")"
  psnr=$(compare -metric PSNR "$png" "$saved" null: 2>&1 || true)
  awk "BEGIN { exit !($psnr > 30) }" || fail "the jpeg is far from the png: $psnr dB"
  say "Pictures of $width x $height saved; the jpeg is $psnr dB from the png"
}

# In the file menu the entry above English, which is the one above End.
switch_to_japanese() {
  window_wait "$main_title"
  [ ! -e "$program/Language.set" ] || fail "Language.set is there before the language was switched"
  keys alt+f
  sleep 0.3
  keys Up Up Up Return
  until_true 10 "no Language.set was written" test -s "$program/Language.set"
  printf 'Japanese\r\n' >"$road/expected"
  same_file "$program/Language.set" "$road/expected"
}

display_start
program_folder_make
answer_first_start
fill_settings
check_settings
program_quit
catalogue_make
sheet_make 533856 "$sheet_red"
sheet_make 533857 "$sheet_green"
timed_start
open_by_click
zoom_and_back
draw_section
save_pictures
switch_to_japanese
program_quit
timed_start
program_quit
