# Shared by ./run and ./check: what a bare machine, a container or another person's folder may lack.
# shellcheck shell=bash

# File names and messages are UTF-8, also where no locale is set.
use_utf8() {
  case ${LC_ALL:-${LC_CTYPE:-${LANG:-}}} in
    *[Uu][Tt][Ff]8* | *[Uu][Tt][Ff]-8*) ;;
    *) export LC_ALL=C.UTF-8 ;;
  esac
}

# The compiler cache stays in the build folder where the home folder can't take it. It knows a source again in another
# checkout, and what is compiled with a precompiled header too.
use_compiler_cache() {
  export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$PWD} CCACHE_NOHASHDIR=${CCACHE_NOHASHDIR:-1}
  export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros,include_file_mtime,include_file_ctime}
  [ -z "${CCACHE_DIR:-}" ] || return 0
  local cache=${XDG_CACHE_HOME:-${HOME:-/nonexistent}/.cache}
  mkdir -p "$cache" 2>/dev/null || true
  [ -w "$cache" ] || export CCACHE_DIR=$PWD/build/ccache
}

# Building needs a folder of one's own: says in one sentence what can't be written.
writable_or_stop() {
  local kept
  if [ ! -w . ]; then
    say "This folder can't be written by $(id -un), so nothing can be built in it: $PWD"
    return 1
  fi
  kept=$(find build sample -maxdepth 3 ! -type l ! -writable -print -quit 2>/dev/null || true)
  if [ -n "$kept" ]; then
    say "$PWD/$kept can't be written by $(id -un); another person seems to have made it."
    return 1
  fi
}

# A build folder knows its place by its whole path: after a move of the checkout it has to be made anew.
forget_moved_builds() {
  local cache home
  for cache in build/*/CMakeCache.txt; do
    [ -e "$cache" ] || continue
    home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache")
    [ "$(realpath -m -- "$home")" = "$PWD" ] && continue
    say "This checkout has been moved, so ${cache%/*} is built anew"
    rm -rf "${cache%/*}"
  done
}
