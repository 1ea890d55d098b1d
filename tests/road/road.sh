# Sourced by the road tests: a display of their own, the real program in a program folder of its own, keys and mouse,
# and what is looked at. A test is called as <test>.sh <terranote> [<times slower>]; this sets `road` (a folder that goes
# at the end), `program` (the program folder) and `slower` (1, more under the sanitizers).
# shellcheck shell=bash
set -euo pipefail

executable=$(realpath -- "$1")
slower=${2:-1}
for tool in Xvfb xdotool openbox import identify convert compare; do
  command -v $tool >/dev/null || { echo "SKIPPED: $tool is not installed"; exit 77; }
done

road=$(mktemp -d)
program=$road/program
server='' manager='' running='' instruments='' window=''

say() { printf '%s\n' "$*"; }
fail() {
  say "FAILED: $*"
  exit 1
}

road_end() {
  local status=$? process picture=${ROAD_PICTURE:-$PWD/$(basename "$0" .sh)_failed.png}
  trap - EXIT
  if [ $status -ne 0 ] && [ -n "$manager" ]; then
    import -silent -window root "$picture" 2>/dev/null && say "The display at that moment: $picture"
    [ ! -s "$road/program.log" ] || { say "The program said:"; tail -n 30 "$road/program.log"; }
  fi
  for process in $running $instruments $manager $server; do kill -9 "$process" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$road"
  exit $status
}
trap road_end EXIT

# until_true <seconds> <what> <command>...: waits for the command to succeed; fails with <what> when it does not.
until_true() {
  local until=$((SECONDS + $1 * slower + 1)) what=$2
  shift 2
  while ! "$@"; do
    [ $SECONDS -lt $until ] || fail "$what"
    [ -z "$running" ] || kill -0 "$running" 2>/dev/null || fail "$what: the program has ended"
    sleep 0.05
  done
}

milliseconds() { date +%s%3N; }

# ---- the display

display_start() {
  mkdir -m 700 "$road/home" "$road/runtime"
  export HOME=$road/home XDG_RUNTIME_DIR=$road/runtime XDG_CACHE_HOME=$road/home XDG_CONFIG_HOME=$road/home
  export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
  unset WAYLAND_DISPLAY XDG_STATE_HOME QT_SCALE_FACTOR QT_FONT_DPI QT_STYLE_OVERRIDE QT_IM_MODULE XMODIFIERS
  # What the fonts' and the display's libraries keep until the end is no leak of the program.
  export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0
  Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 3>"$road/number" 2>"$road/server.log" &
  server=$!
  until_true 20 "the virtual display did not start" test -s "$road/number"
  DISPLAY=:$(cat "$road/number")
  export DISPLAY
  openbox >"$road/manager.log" 2>&1 &
  manager=$!
  until_true 20 "the window manager did not start" xdotool get_desktop >/dev/null 2>&1
}

# ---- the program

program_folder_make() {
  mkdir -p "$program"
  ln "$executable" "$program/terranote" 2>/dev/null || cp "$executable" "$program/terranote"
}

program_start() {
  "$program/terranote" >"$road/program.log" 2>&1 &
  running=$!
}

# A program that has ended but was not waited for still has its number.
program_has_ended() {
  local state
  { read -r _ _ state _ <"/proc/$1/stat"; } 2>/dev/null || return 0
  [ "$state" = Z ]
}

# The program must end by itself, and well.
program_wait_end() {
  local status=0 ending=$running
  running=''
  until_true 10 "the program did not end" program_has_ended "$ending"
  wait "$ending" || status=$?
  [ $status -eq 0 ] || fail "the program ended with $status"
}

program_kill() {
  kill -9 "$running"
  wait "$running" 2>/dev/null || true
  running=''
}

# ---- windows

main_title='^Terranote Ver '
message_title='^Terranote$'
settings_title='^(Basic Setting|基本設定)$'

# window_find <title, a regular expression>: sets `window`.
window_find() {
  window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1 || true)
  [ -n "$window" ]
}
window_gone() { ! window_find "$1"; }
window_has_keys() { [ "$(xdotool getwindowfocus 2>/dev/null)" = "$window" ]; }

# Waits for a window and for the keyboard to be its own.
window_wait() {
  until_true 20 "no window \"$1\" came up" window_find "$1"
  until_true 10 "the window \"$1\" did not get the keyboard" window_has_keys
}
window_wait_gone() { until_true 10 "the window \"$1\" stays" window_gone "$1"; }

# Ends the program as a person does.
program_quit() {
  window_wait "$main_title"
  keys ctrl+q
  program_wait_end
}

# ---- keys and mouse

keys() { xdotool key --clearmodifiers --delay 25 "$@"; }
# Replaces the text of the box that has the keyboard.
typed_over() {
  keys ctrl+a
  xdotool type --clearmodifiers --delay 12 -- "$1"
}
mouse_to() { xdotool mousemove "$1" "$2"; }
click_at() {
  mouse_to "$1" "$2"
  sleep 0.1
  xdotool click 1
}

# ---- what is seen

# A portable pixmap holds nothing but its pixels, so that the same picture is the same file.
look() { import -silent -window root "$1"; }
pixels_of() { cksum <"$1"; }

# Waits until the display stands still, and leaves it in <picture.ppm>. (In a box for text the cursor blinks.)
wait_still() {
  local last='' now same=0 until=$((SECONDS + 20 * slower))
  while [ $same -lt 2 ]; do
    look "$1"
    now=$(pixels_of "$1")
    if [ "$now" = "$last" ]; then same=$((same + 1)); else same=0; fi
    last=$now
    [ $SECONDS -lt $until ] || fail "the picture did not come to rest"
    sleep 0.1
  done
}

# box_of <picture> <colour>: "left top width height" of all pixels of exactly that colour; nothing when there are none.
box_of() {
  convert "$1" -alpha off -fill black +opaque "$2" -fill white -opaque "$2" -format '%[fx:maxima] %@' info:- 2>/dev/null |
    awk '$1 > 0 { split($2, part, /[x+]/); print part[3], part[4], part[1], part[2] }'
}

# ---- files

# The bytes of lines of text in code page 932 with CR LF.
as_file() { sed 's/$/\r/' | iconv -f UTF-8 -t CP932; }

# same_file <file> <file with what is expected>
same_file() {
  cmp -s "$1" "$2" && return 0
  diff <(od -c "$2") <(od -c "$1") | head -n 20 || true
  fail "$1 does not hold what it should"
}
