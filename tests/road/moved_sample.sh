#!/usr/bin/env bash
# moved_sample.sh <folder of the shell scripts>: what ./run does to a sample that stands already. A moved one gets its
# own folders back in settei.ini; a person's settings and files stay as they are, byte for byte.
set -euo pipefail
scripts=$(realpath -- "$1")
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
fail() {
  echo "FAILED: $*"
  exit 1
}

# settings_of <former sample folder> <project folder>: lines 4 to 24 are a person's own.
settings_of() {
  {
    printf '%s/program\n様式ソ.xls\n%s\n' "$1" "$2"
    printf 'line %d 表,\\ソ～－\n' $(seq 4 24)
    printf '%s/program\\map\nTrue\nFalse\n' "$1"
  } | sed 's/$/\r/' | iconv -f UTF-8 -t CP932
}

# The sample of a person: an observation of theirs, and settei.ini from the input.
sample_make() {
  mkdir -p "$sample/program/map" "$sample/project/chisou_men"
  echo 'an observation' >"$sample/project/chisou_men/own.csv"
  cat >"$sample/program/settei.ini"
}

expect() {
  cmp "$sample/program/settei.ini" "$place/expected" || fail "$1"
  [ "$(ls "$sample/program")" = "$(printf 'map\nsettei.ini')" ] || fail "$1: something is left in the program folder"
}

sample="$place/新しい 場所/sample"
settings_of /gone/sample /gone/sample/project | sample_make
settings_of "$sample" "$sample/project" >"$place/expected"
"$scripts/mend_moved_sample" "$sample" 2>"$place/said"
expect 'a moved sample'
grep -q 'has been moved' "$place/said" || fail 'a moved sample: nothing was said'
"$scripts/mend_moved_sample" "$sample" 2>"$place/said"
expect 'a sample that is in its place'
[ ! -s "$place/said" ] || fail 'a sample that is in its place: something was said'

mkdir "$place/mine"
sample="$place/own project/sample"
settings_of /gone/sample "$place/mine" | tee "$place/expected" | sample_make
"$scripts/mend_moved_sample" "$sample"
expect 'a project folder of the person'

sample="$place/away/sample"
settings_of /gone/sample /media/disk/survey | tee "$place/expected" | sample_make
"$scripts/mend_moved_sample" "$sample"
expect 'a project folder on a disk that is away'

sample="$place/noise/sample"
printf '\377\200\\\201%d\n' $(seq 500) | tee "$place/expected" | sample_make
"$scripts/mend_moved_sample" "$sample"
expect 'a settings file that is no text'

# A stand-in for the build: making the sample again would be seen in its files.
mkdir -p "$place/build/tools" "$place/build/src"
printf '#!/bin/sh\nmkdir -p "$1/program" "$1/project"; echo made >"$1/made"\n' >"$place/build/tools/make_sample"
chmod +x "$place/build/tools/make_sample"
echo 'program 1' >"$place/build/src/terranote"
"$scripts/place_sample" "$place/build" "$place/sample" 2>/dev/null
[ -e "$place/sample/made" ] || fail 'no sample was made'
cmp "$place/sample/program/terranote" "$place/build/src/terranote"
rm "$place/sample/made"
echo 'own' >"$place/sample/project/own.csv"
echo 'program 2' >"$place/build/src/terranote"
"$scripts/place_sample" "$place/build" "$place/sample" 2>/dev/null
[ ! -e "$place/sample/made" ] && [ "$(cat "$place/sample/project/own.csv")" = own ] || fail 'the sample was made again'
cmp "$place/sample/program/terranote" "$place/build/src/terranote"
mkdir "$place/other"
echo 'own' >"$place/other/letter.txt"
! "$scripts/place_sample" "$place/build" "$place/other" 2>/dev/null || fail 'a folder of other things was taken for a sample'
[ "$(ls "$place/other")" = letter.txt ] || fail 'a folder of other things was changed'
