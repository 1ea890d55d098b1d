#!/usr/bin/env bash
# A kill in the middle of saving one record of 15,000: the registry is the old one or the new one, whole. The next start
# leaves nothing over from the kill, and what was saved can be taken back.
source "$(dirname -- "${BASH_SOURCE[0]}")/road.sh"
source "$(dirname -- "${BASH_SOURCE[0]}")/sheet.sh"

rounds=6
state=$road/home/.local/state
marker_red='#FF0000' ring_blue='#007ACC'

# registry_of <Z of record 1>: 15,000 records, the first alone at 100, 100 pixels and the others in the lower right.
registry_of() {
  awk -v place="$(place_at 100 100)" -v z="$1" 'BEGIN {
    print " 0 ," place "," z ",Boundary,Shale,N15W,30E,081115-001*1,,circle, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,"
    for (i = 2; i <= 15000; ++i)
      printf " 0 ,%.2f,%.2f,%d,Boundary,Shale,,,081116-%05d,,circle, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,\n",
        13892000 + i % 137 * 30 + 0.25, 3576000 + i % 101 * 25 + 0.25, i % 900, i
  }' | as_file
}

temporaries() { find "$program" "$project" "$state" -name '.terranote-*' 2>/dev/null; }
temporary_is_in() { compgen -G "$1/.terranote-*.tmp" >/dev/null; }
panel_is_up() { some_near "$marker_red" 100 100; }
registry_is() { cmp -s "$registry" "$road/$1"; }

# change_height <Z>: up to the key that saves.
change_height() {
  sheet_click 100 100
  sheet_move 160 160
  until_true 20 "a click did not mark the observation" some_near "$ring_blue" 100 100
  keys ctrl+e
  until_true 20 "Ctrl+E did not open the panel" panel_is_up
  typed_over "$1"
  sleep 0.2
  xdotool key --delay 0 Return
}

# wait_for_save <folder>: until a save has begun to write there, or is over already.
wait_for_save() {
  local until=$((SECONDS + 5 * slower))
  while ! temporary_is_in "$1" && [ $SECONDS -lt $until ] && ! cmp -s "$1/points.csv" "$road/new"; do :; done
}

# Kills in the registry's own save, in that of its copy, or some milliseconds after the key, in turn.
kill_in_the_save() {
  case $(($1 % 3)) in
    0) wait_for_save "$project/chisou_men" ;;
    1) wait_for_save "$project/chisou_men/csv" ;;
    2) sleep "0.$(printf '%03d' $(($1 * 9)))" ;;
  esac
  program_kill
}

# Nothing is lost: whichever it is, the copy in the folder beside it is whole too.
look_at_files() {
  if registry_is new; then
    new=$((new + 1))
  elif registry_is old; then
    old=$((old + 1))
  else
    fail "the registry is neither the old nor the new one after kill $1: $(wc "$registry")"
  fi
  ! temporaries | grep -q . || within=$((within + 1))
  local copy=$project/chisou_men/csv/points.csv
  [ ! -e "$copy" ] || cmp -s "$copy" "$road/old" || cmp -s "$copy" "$road/new" || cmp -s "$copy" "$road/before" ||
    fail "the copy of the registry is neither old nor new after kill $1"
}

undo_works() {
  if registry_is old; then
    change_height 3000
    until_true 20 "the record was not saved after a kill" registry_is later
    until_true 20 "the panel stays" none_near "$marker_red" 100 100
  fi
  keys ctrl+z
  until_true 20 "the save before the kill was not taken back" registry_is old
}

start_again() {
  program_start
  sheet_open
  until_true 20 "the observations are not drawn" observations_are_drawn
  [ -z "$(temporaries)" ] || fail "left over from a kill: $(temporaries)"
}
# Thousands of black circles.
observations_are_drawn() {
  look "$road/drawn.ppm"
  [ "$(convert "$road/drawn.ppm" -crop "300x300+$((sheet_left + 200))+$((sheet_top + 150))" +repage -fill white \
         +opaque black -fill black -opaque black -format '%[fx:round((1-mean)*w*h)]' info:-)" -gt 5000 ]
}

display_start
field_make English
registry_of 1000 >"$road/old"
registry_of 3000 >"$road/later"
cp "$road/old" "$road/before"
cp "$road/old" "$registry"
old=0 new=0 within=0
start_again
for round in $(seq $rounds); do
  registry_of $((2000 + round)) >"$road/new"
  change_height $((2000 + round))
  kill_in_the_save "$round"
  look_at_files "$round"
  cp "$road/new" "$road/before"
  start_again
  undo_works
done
program_quit
[ -z "$(temporaries)" ] || fail "left over at the end: $(temporaries)"
[ $within -gt 0 ] || say "No kill fell into a write: less was seen than could be"
say "$rounds kills: $old times the old registry, $new times the new one; $within kills left a temporary file"
