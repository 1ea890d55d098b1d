#!/usr/bin/env bash
# A whole road through the real program on a display of its own: an empty program folder, the basic settings entered
# with the keyboard, a sheet opened, zoomed and saved as a picture; then a second start.
# first_picture.sh <terranote> <make_sample>
set -euo pipefail
program_source=$1
make_sample=$2
for tool in Xvfb xdotool import; do
  command -v $tool >/dev/null || { echo "SKIPPED: $tool is not installed"; exit 77; }
done
