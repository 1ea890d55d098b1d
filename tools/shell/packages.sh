# Shared by ./run and ./check: installs the Debian packages that are missing.
# shellcheck shell=bash

build_packages=(g++ cmake ninja-build pkg-config ccache qt6-base-dev qt6-serialport-dev libgl-dev)
run_packages=(libqt6widgets6 libqt6serialport6 qt6-qpa-plugins qt6-translations-l10n fonts-ipafont-gothic)
display_packages=(xvfb xauth xdotool imagemagick)
test_packages=(libgtest-dev libgmock-dev openbox gdal-bin gpsbabel)

say() { printf '%s\n' "$*" >&2; }

installed() {
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# May this person install packages? Says why not in one sentence. Sets as_root to what stands before apt-get.
may_install() {
  as_root=()
  if ! command -v apt-get >/dev/null; then
    say "These packages are missing and this machine has no apt-get to install them: $*"
    return 1
  fi
  [ "$(id -u)" -ne 0 ] || return 0
  if ! command -v sudo >/dev/null; then
    say "These packages are missing and only root can install them (there is no sudo): $*"
    return 1
  fi
  as_root=(sudo)
  if [ ! -t 0 ] && ! sudo -n true 2>/dev/null; then
    say "These packages are missing and sudo can't ask for a password without a terminal: $*"
    return 1
  fi
}

# Why apt-get failed, from its log, in the words of a person.
reason_of() {
  if grep -qE 'Could not get lock|Unable to acquire|Unable to lock' "$1"; then
    echo 'another program is installing packages'
  elif grep -q 'No space left on device\|enough free space' "$1"; then
    echo 'the disk is full'
  elif grep -qE 'Temporary failure resolving|Could not resolve|Could not connect|Unable to connect|Failed to fetch|Connection (timed out|failed)' "$1"; then
    echo 'the package server was not reached; is this machine on a network?'
  elif grep -qE 'Unable to locate package|has no installation candidate' "$1"; then
    echo "this system's package lists do not hold them; Debian 12 does"
  else
    echo 'apt-get failed'
  fi
}

# install_missing <package>...: nothing is asked of the network when all are there.
install_missing() {
  local missing=() as_root=() package log
  for package in "$@"; do installed "$package" || missing+=("$package"); done
  [ ${#missing[@]} -eq 0 ] && return 0
  may_install "${missing[*]}" || return 1
  say "Installing ${missing[*]}"
  log=$(mktemp)
  # A list of another supplier that can't be fetched must not keep Debian's own packages away.
  "${as_root[@]}" apt-get -q update >"$log" 2>&1 </dev/null || true
  if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=120 \
         --no-install-recommends install "${missing[@]}" >>"$log" 2>&1 </dev/null; then
    tail -n 15 "$log" >&2
    say "These packages could not be installed (the lines above are apt-get's): ${missing[*]}: $(reason_of "$log")"
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}
