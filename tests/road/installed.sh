#!/usr/bin/env bash
# The road of a program that is installed for everybody: the first start makes the user's own program folder and puts the
# sample in place, the second asks nothing and changes no file.
source "$(dirname -- "${BASH_SOURCE[0]}")/road.sh" "$@"

build=$(realpath -- "$(dirname -- "$executable")/..")
cmake --install "$build" --prefix "$road/usr" >"$road/install.log" 2>&1 || fail "$(tail -n 3 "$road/install.log")"
chmod -R a-w "$road/usr/share/terranote"
display_start
unset XDG_DATA_HOME
mkdir "$HOME/Documents"
program=$HOME/.local/share/terranote project="$HOME/Documents/Terranote sample"
program_start() {
  "$road/usr/bin/terranote" >"$road/program.log" 2>&1 &
  running=$!
}
files_of_home() { (cd "$HOME" && find .local/share Documents -type f -exec cksum {} + | LC_ALL=C sort); }

say "The first start asks whether the sample is wanted"
program_start
window_wait "$message_title"
keys Return
until_true 120 "the sample did not come" test -s "$program/sample.set"
window_wait "$main_title"
program_quit
for file in "$program"/{Language.set,settei.ini,igrf10.coef,def.dbf,ZUMEI.CSV,map/533856.bmp} \
  "$project"/{sample.txt,chisou_men/souzyo.dat}; do
  [ -s "$file" ] || fail "there is no $file"
done
[ "$(sed -n '3s/\r$//p' "$program/settei.ini")" = "$project" ] || fail "the settings don't name the sample's project"

say "The second start asks nothing and leaves every file as it is"
echo 'changed by the user' >"$program/def.dbf"
files_of_home >"$road/files"
program_start
window_wait "$main_title"
keys ctrl+m Home
wait_still "$road/sheet.ppm"
window_gone "$message_title" || fail "the second start asked something"
program_quit
files_of_home | cmp -s - "$road/files" || fail "the second start has changed files: $(files_of_home | diff - "$road/files")"

say "A user who has settings is asked nothing either"
rm "$program/sample.set"
program_start
window_wait "$main_title"
window_gone "$message_title" || fail "a user with settings was asked about the sample"
program_quit
[ ! -e "$program/sample.set" ] || fail "an answer was kept that nobody gave"
