#!/usr/bin/env bash
# A field book worked in by mouse and keys: observations registered, seen, changed, drawn, deleted, taken back step by
# step, done again, taken back across a restart. Each time the files are those written here by hand or kept from before.
source "$(dirname -- "${BASH_SOURCE[0]}")/road.sh"
source "$(dirname -- "${BASH_SOURCE[0]}")/sheet.sh"

strike_blue='#0000FF' ring_blue='#007ACC' marker_red='#FF0000'
steps=0

# A day that ends while the road runs would give the observations two dates.
while [ "$(date +%H%M)" -ge 2355 ]; do sleep 10; done
today=$(date +%y%m%d)

# ---- the files of the project

tree_of() { (cd "$1" && find . -type f -print0 | sort -z | xargs -0 -r cksum); }
tree_is() { [ "$(tree_of "$project")" = "$(tree_of "$road/step$1")" ]; }

# What the project's files hold now is the state behind one more step.
keep_step() {
  steps=$((steps + 1))
  cp -a "$project" "$road/step$steps"
}

# expect_registry <line>...: waits until the registry holds just these lines, and looks at the copy beside it.
expect_registry() {
  if [ $# -gt 0 ]; then printf '%s\n' "$@" | as_file >"$road/expected"; else : >"$road/expected"; fi
  until_true 10 "the registry was not saved" changed_since "$steps"
  same_file "$registry" "$road/expected"
  until_true 10 "no copy of the registry was made" file_is "$project/chisou_men/csv/points.csv" "$road/expected"
}
changed_since() { ! cmp -s "$registry" "$road/step$1/chisou_men/points.csv"; }

# record <place> <Z> <object> <stratum> <strike> <dip> <number> <mark>: a line without vertices.
record() { printf ' 0 ,%s,%s,%s,%s,%s,%s,%s,,%s, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,,' "$@"; }

# ---- the panel

panel_is_up_at() { some_near "$marker_red" "$1" "$2"; }

# The second entry of the menu of a place is the first that can be chosen.
new_by_menu() {
  sheet_move "$1" "$2"
  xdotool click 3
  until_true 10 "the right button brought no menu" menu_is_up
  keys Down Return
  until_true 10 "the menu did not open the panel" panel_is_up_at "$1" "$2"
}
menu_is_up() { [ "$(xdotool search --onlyvisible --class '^terranote$' 2>/dev/null | wc -l)" -gt "$windows" ]; }

new_by_key() {
  sheet_move "$1" "$2"
  keys ctrl+n
  until_true 10 "Ctrl+N did not open the panel" panel_is_up_at "$1" "$2"
}

tabs() { for _ in $(seq "$1"); do keys "${2:-Tab}"; done; }
typed() { xdotool type --clearmodifiers --delay 12 -- "$1"; }

# The button "Save" of the panel, at the lower end of the window's right side.
click_save() { click_at 1165 723; }

# ---- the steps

register_with_menu() {
  new_by_menu 200 150
  typed 120
  tabs 2
  keys Down
  keys Tab
  typed 'Kirisawa shale'
  keys Tab
  typed N15W
  keys Tab
  typed 30E
  tabs 12
  typed 'weathered;'
  keys Return
  typed 'measured twice'
  tabs 12 shift+Tab
  keys Return
  first=$(record "$(place_at 200 150)" 120 地層境界面 'Kirisawa shale' N15W 30E "$today-001*1" ○)
  expect_registry "$first 0 ,"
  printf '%s\n' 'weathered;' 'measured twice' | as_file >"$road/expected"
  same_file "$project/chisou_men/txt/$today-001.txt" "$road/expected"
  until_true 10 "no strike line is seen" some_near "$strike_blue" 200 150
  keep_step
}

register_with_key() {
  new_by_key 420 230
  tabs 4
  typed n40e
  keys Tab
  typed 60w
  keys Return
  second=$(record "$(place_at 420 230)" '' '' '' n40e 60w "$today-002*2" ○)
  expect_registry "$first 0 ," "$second 0 ,"
  until_true 10 "no strike line is seen" some_near "$strike_blue" 420 230
  keep_step
}

mark_by_click() {
  sheet_click "$1" "$2"
  sheet_move $(($1 + 60)) $(($2 + 60))
  until_true 10 "a click did not mark the observation" some_near "$ring_blue" "$1" "$2"
}

change_height() {
  mark_by_click 200 150
  keys ctrl+e
  until_true 10 "Ctrl+E did not open the panel" panel_is_up_at 200 150
  typed 135.5
  keys Return
  first=$(record "$(place_at 200 150)" 135.5 地層境界面 'Kirisawa shale' N15W 30E "$today-001*1" ○)
  expect_registry "$first 0 ," "$second 0 ,"
  keep_step
}

# choose_and_begin <key>...: from the height's box to the list of marks, and on to the button that begins the line.
choose_and_begin() {
  tabs 11
  keys "$@"
  tabs 8
  keys Return
}

# expect_vertices <line> <x> <y>...: a record's vertices are the places of these pixels, to a hundredth of a unit.
expect_vertices() {
  local found=$1 i=1 x y place
  shift
  while [ $# -gt 0 ]; do
    place=$(place_at "$1" "$2")
    x=$(cut -d, -f$((i * 2 + 23)) <<<"$found")
    y=$(cut -d, -f$((i * 2 + 24)) <<<"$found")
    awk -F, -v x="$x" -v y="$y" '{ exit !((x - $1) ^ 2 < 1e-4 && (y - $2) ^ 2 < 1e-4) }' <<<"$place" ||
      fail "vertex $i lies at $x, $y, expected is $place"
    i=$((i + 1))
    shift 2
  done
  [ "$(cut -d, -f$((i * 2 + 23)) <<<"$found")" = '' ] || fail "there are more vertices than $((i - 1))"
}

# The newest record: its line without the vertices, and the vertices alone.
newest() { tail -n 1 "$registry" | tr -d '\r' | iconv -f CP932 -t UTF-8; }
expect_drawn() {
  local line=$1 count=$2
  shift 2
  until_true 10 "the registry was not saved" changed_since "$steps"
  [[ "$(newest)" == "$line $count ,"* ]] || fail "the newest record is $(newest), expected is $line $count ,"
  expect_vertices "$(newest)" "$@"
  keep_step
}

draw_line() {
  new_by_key 100 300
  choose_and_begin End Up
  sheet_click 100 300
  sheet_click 160 340
  sheet_move 220 310
  keys Return
  click_save
  third=$(record "$(place_at 100 300)" '' '' '' '' '' "$today-003*3" 線)
  expect_drawn "$third" 3 100 300 160 340 220 310
}

# The last side crosses the first one: the ring begins and ends there.
draw_enclosure() {
  new_by_key 300 300
  choose_and_begin End Up Up
  sheet_click 300 300
  sheet_click 400 300
  sheet_click 400 420
  sheet_click 340 240
  sheet_move 500 450
  click_save
  fourth=$(record "$(place_at 300 300)" '' '' '' '' '' "$today-004*4" 範囲)
  expect_drawn "$fourth" 3 400 300 400 420 360 300
}

delete_second() {
  mark_by_click 420 230
  keys ctrl+d
  window_wait "$message_title"
  keys Return
  window_wait_gone "$message_title"
  until_true 10 "the observation was not deleted" changed_since "$steps"
  sed 2d "$road/step$steps/chisou_men/points.csv" >"$road/expected"
  same_file "$registry" "$road/expected"
  until_true 10 "the strike line of a deleted observation stays" none_near "$strike_blue" 420 230
  keep_step
}

undo_to() {
  keys ctrl+z
  until_true 10 "Ctrl+Z did not bring back the files of step $1" tree_is "$1"
}

undo_and_redo_all() {
  local step
  for step in $(seq $((steps - 1)) -1 0); do undo_to "$step"; done
  until_true 10 "the strike line of an observation taken back stays" none_near "$strike_blue" 200 150
  for step in $(seq "$steps"); do
    keys ctrl+y
    until_true 10 "Ctrl+Y did not bring back the files of step $step" tree_is "$step"
  done
  until_true 10 "no strike line is seen after Ctrl+Y" some_near "$strike_blue" 200 150
}

undo_across_restart() {
  program_quit
  program_start
  sheet_open
  undo_to $((steps - 1))
  undo_to $((steps - 2))
}

# Another program's line is neither lost nor mixed with what is taken back.
leave_changed_file() {
  printf 'another program\r\n' >>"$registry"
  cp -a "$project" "$road/changed"
  keys ctrl+z
  window_wait "$message_title"
  [ "$(tree_of "$project")" = "$(tree_of "$road/changed")" ] || fail "a file changed by another program was overwritten"
  keys Return
  window_wait_gone "$message_title"
  cp "$road/step$((steps - 2))/chisou_men/points.csv" "$registry"
  undo_to $((steps - 3))
}

# Nothing lies in the folders of the project and the program but the files that belong there.
expect_files() {
  (cd "$project" && find . -type f) | LC_ALL=C sort >"$road/found"
  printf './chisou_men/%s\n' csv/points.csv points.csv "txt/$today-001.txt" | LC_ALL=C sort >"$road/expected"
  same_file "$road/found" "$road/expected"
  (cd "$program" && find . -type f) | LC_ALL=C sort >"$road/found"
  printf './%s\n' Language.set dempath.dat igrf10.coef map/field.bmp map/field.set settei.ini terranote |
    LC_ALL=C sort >"$road/expected"
  same_file "$road/found" "$road/expected"
  [ -d "$HOME/.local/state/terranote" ] || fail "the undo journal is not in the folder of the person's own state"
}

display_start
field_make Japanese
cp "$program/settei.ini" "$road/settei"
cp -a "$project" "$road/step0"
program_start
sheet_open
windows=$(xdotool search --onlyvisible --class '^terranote$' | wc -l)
register_with_menu
register_with_key
change_height
draw_line
draw_enclosure
delete_second
say "$steps steps saved and looked at"
undo_and_redo_all
undo_across_restart
leave_changed_file
program_quit
expect_files
same_file "$program/settei.ini" "$road/settei"
