# Shared by ./run and ./check: installs the Debian packages that are missing.
# shellcheck shell=bash

build_packages=(g++ cmake ninja-build pkg-config ccache qt6-base-dev libgl-dev)
run_packages=(libqt6widgets6 qt6-qpa-plugins qt6-translations-l10n fonts-ipafont-gothic)
display_packages=(xvfb xauth xdotool imagemagick)
test_packages=(libgtest-dev libgmock-dev)

say() { printf '%s\n' "$*" >&2; }

installed() {
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# install_missing <package>...: nothing is asked of the network when all are there.
install_missing() {
  local missing=() package
  for package in "$@"; do installed "$package" || missing+=("$package"); done
  [ ${#missing[@]} -eq 0 ] && return 0
  if ! command -v apt-get >/dev/null; then
    say "These packages are missing and this machine has no apt-get to install them: ${missing[*]}"
    return 1
  fi
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      say "These packages are missing and only root can install them: ${missing[*]}"
      return 1
    fi
    as_root=(sudo)
  fi
  say "Installing ${missing[*]}"
  local log
  log=$(mktemp)
  if ! { "${as_root[@]}" apt-get -q update &&
         "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${missing[@]}"; } >"$log" 2>&1
  then
    tail -n 15 "$log" >&2
    rm -f "$log"
    say "These packages could not be installed: ${missing[*]}"
    return 1
  fi
  rm -f "$log"
}
