# Sourced behind road.sh and sheet.sh: imagined instruments at the program's ports. A test is called as <test>.sh
# <terranote> [<times slower>] and finds the emulators beside the program, in the same build.
# shellcheck shell=bash

emulators=$(dirname -- "$executable")/../tools
plugged=''

# plug_in <port, two digits> <emulator> <argument>...: until the port's link stands. Sets `plugged`.
plug_in() {
  local link=$program/ports/com$1 emulator=$emulators/$2
  shift 2
  [ -x "$emulator" ] || fail "$emulator is not built"
  mkdir -p "$program/ports"
  "$emulator" --link "$link" "$@" >"$road/emulator.log" 2>&1 &
  plugged=$!
  instruments+=" $plugged"
  until_true 10 "the instrument was not plugged in" test -e "$link"
}

unplug() {
  kill "$plugged"
  wait "$plugged" 2>/dev/null || true
  plugged=''
}
