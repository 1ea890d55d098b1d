#!/usr/bin/env bash
# Broken files of every kind: the program starts, opens the sheets that it can, stays up, ends well, and changes nothing
# on the disk but what a start writes (dempath.dat and its subfolders).
source "$(dirname -- "${BASH_SOURCE[0]}")/road.sh"

project=$road/project

settings_lines() {
  printf '%s\n' "$program" '' "$project" 04 9600 True False False True False sheet1 '' '' '' '' True False points.csv \
    1000 1000 500 100 6000 6000 "$program\\map" True False
}

# A whole program folder and project: one sheet of the catalogue, one with a frame of its own.
good_files() {
  rm -rf "$program" "$project"
  program_folder_make
  mkdir -p "$program/map" "$program/mps" "$project/chisou_men"
  : >"$project/chisou_men/points.csv"
  settings_lines | as_file >"$program/settei.ini"
  echo '533856,霧沢,KIRISAWA,,,,,354500.0,1385230.0,354511.6,1385218.3,,355000.0,1384500.0,355011.5,1384448.2' |
    as_file >"$program/ZUMEI.CSV"
  echo '138,46,30,35,48,30,138,52,0,35,44,0' | as_file >"$program/map/slope.set"
  echo 'name="霧沢村" pos="138.75/35.80;138.80/35.80;138.80/35.82"' | as_file >"$program/mps/kirisawa.mps"
  printf '%s\n' 'JGD2000-TokyoDatum Ver.S.1.0' 'MeshCode   dB(sec)   dL(sec)' '53385601  11.66320 -11.60012' |
    as_file >"$program/TKY2JGD.par"
  echo English | as_file >"$program/Language.set"
  printf '%s\n' "A-A',2" ' 100 , 200 ' ' 300 , 400 ' | as_file >"$program/danmen.dat"
  convert -size 300x240 xc:'#C83232' -type TrueColor "BMP3:$program/map/533856.bmp"
  cp "$program/map/533856.bmp" "$program/map/slope.bmp"
}

# Ways to break a file; each prints it broken.
truncated() { head -c $((($(stat -c %s "$1") + 1) / 2)) "$1"; }
empty() { :; }
binary() { head -c 20000 <(yes "$(printf '\001\377\200\r\201')" | tr '\n' '\0'); }
huge() {
  cat "$1"
  head -c 8000000 <(yes '99999999999999999999,-1e308,"霧,,,,,,,,,,,,,,,,,,,,,,,,,,,')
  head -c 8000000 <(yes 12345678 | tr -d '\n')
}
wrongly_encoded() { iconv -f CP932 -t UTF-16 "$1"; }

tables=(ZUMEI.CSV map/slope.set mps/kirisawa.mps TKY2JGD.par danmen.dat Language.set)

# break_files <way> <file>...
break_files() {
  local way=$1 name
  shift
  for name in "$@"; do
    "$way" "$program/$name" >"$road/broken"
    cat "$road/broken" >"$program/$name"
  done
}

# A picture whose header promises more than any machine holds, and pictures that end in the middle.
break_pictures() {
  printf 'BM\x36\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\xff\xff\xff\x7f\xff\xff\xff\x7f\1\0\x18\0\0\0\0\0\0\0\0\0' \
    >"$program/map/533856.bmp"
  truncated "$program/map/slope.bmp" >"$road/broken"
  cat "$road/broken" >"$program/map/slope.bmp"
  head -c 3000 /dev/zero >"$program/map/zero.bmp"
  : >"$program/map/533857.bmp"
}

state_of_disk() {
  (cd "$road" && find program project -type f ! -name dempath.dat ! -name terranote -printf '%p %s ' -exec sh -c 'cksum <"$1"' - {} \;) |
    LC_ALL=C sort
}

# The main window has the keyboard, and the display stands still; a message over it, such as one on a table that is too
# long, is answered.
main_is_ready() {
  if window_find "$message_title"; then
    keys Return
    sleep 0.2
    return 1
  fi
  window_find "$main_title" && window_has_keys
}
main_wait() {
  until_true 20 "the main window can't be reached" main_is_ready
  wait_still "$road/rest.ppm"
  until_true 20 "the main window can't be reached" main_is_ready
}

# start_look_end <what is broken> <key of the list>...
start_look_end() {
  local what=$1 before began key
  shift
  before=$(state_of_disk)
  began=$(milliseconds)
  program_start
  if [ ! -s "$program/settei.ini" ]; then # as at the first start
    window_wait "$message_title"
    keys Return
    window_wait "$settings_title"
    keys alt+F4
    window_wait_gone "$settings_title"
  else
    main_wait
    keys ctrl+m
    for key in "$@"; do
      keys $key
      sleep 0.4 # a row opens after the keys have rested
      main_wait
    done
  fi
  program_quit
  [ "$(state_of_disk)" = "$before" ] || {
    diff <(echo "$before") <(state_of_disk) || true
    fail "$what: files were changed"
  }
  [ "$(cat "$program/dempath.dat")" = "$program"$'\r' ] || fail "$what: dempath.dat holds $(cat "$program/dempath.dat")"
  say "$what: $(($(milliseconds) - began)) ms"
}

display_start
for way in truncated empty binary huge wrongly_encoded; do
  good_files
  break_files $way "${tables[@]}"
  start_look_end "$way tables" Home Down
  good_files
  break_files $way settei.ini
  start_look_end "$way settei.ini" Home
done
good_files
break_pictures
start_look_end "broken pictures" Home Down Down Down
