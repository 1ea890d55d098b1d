#!/usr/bin/env bash
# A kill in the middle of saving the basic settings: settei.ini is the old one or the new one, never a part of either.
source "$(dirname -- "${BASH_SOURCE[0]}")/road.sh"

rounds=12
project=$road/project

# settings_of <half range of the map cut>
settings_of() {
  printf '%s\n' "$program" '' "$project" 04 9600 True False False True False sheet1 '' '' '' '' True False points.csv \
    "$1" "$1" 500 100 6000 6000 "$program\\map" True False | as_file
}

temporary_is_there() { compgen -G "$program/.terranote-*.tmp" >/dev/null; }

# Kills as soon as the save has begun to write (even rounds) or after some milliseconds (odd rounds).
kill_in_the_save() {
  local until=$((SECONDS + 2 * slower))
  if [ $(($1 % 2)) -eq 0 ]; then
    while ! temporary_is_there && [ $SECONDS -lt $until ] && cmp -s "$program/settei.ini" "$road/old"; do :; done
  else
    sleep "0.0$(printf '%02d' $(($1 * 7)))"
  fi
  program_kill
}

# One round: the half range is changed in the settings, and the save is not lived through.
save_and_die() {
  settings_of $((1000 + $1)) >"$road/old"
  settings_of $((2000 + $1)) >"$road/new"
  cp "$road/old" "$program/settei.ini"
  program_start
  window_wait "$main_title"
  keys alt+f
  sleep 0.3
  keys Return
  window_wait "$settings_title"
  keys ctrl+Tab
  keys alt+x
  typed_over $((2000 + $1))
  keys alt+y
  typed_over $((2000 + $1))
  sleep 0.2
  xdotool key --delay 0 ctrl+s
  kill_in_the_save "$1"
}

display_start
program_folder_make
mkdir -p "$program/map" "$project/chisou_men"
echo English | as_file >"$program/Language.set"
: >"$project/chisou_men/points.csv"
old=0 new=0 within=0
for round in $(seq $rounds); do
  save_and_die "$round"
  if cmp -s "$program/settei.ini" "$road/new"; then
    new=$((new + 1))
  elif cmp -s "$program/settei.ini" "$road/old"; then
    old=$((old + 1))
  else
    cat -A "$program/settei.ini"
    fail "settei.ini is neither the old nor the new one after kill $round"
  fi
  ! temporary_is_there || within=$((within + 1))
  rm -f "$program"/.terranote-*.tmp
done
say "$rounds kills: $old times the old settings, $new times the new ones; $within kills fell between write and rename"
