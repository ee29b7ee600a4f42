# Sourced by the scripts of this folder, by ./run and by ./test: where things are, and how a step is shown.
# shellcheck shell=bash
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build
jobs=$(nproc 2>/dev/null || echo 2)

say() { printf '%s\n' "$*"; }
fail() { printf '%s\n' "$*" >&2; exit 1; }

# step TITLE COMMAND...: runs the command and prints how long it took. On a terminal its output is shown as it
# comes; elsewhere it goes to build/log, with a sign of life every half minute, and is shown when it fails.
step() {
  local title=$1 status=0 started=$SECONDS log
  shift
  say "-- $title"
  if [ -t 1 ]; then
    "$@" || status=$?
  else
    mkdir -p "$build/log"
    log=$build/log/$(printf '%s' "$title" | tr -cs 'A-Za-z0-9' '-').txt
    "$@" >"$log" 2>&1 </dev/null &
    local worker=$! waited=0
    while kill -0 "$worker" 2>/dev/null; do
      sleep 0.2
      waited=$((waited + 1))
      [ $((waited % 150)) -ne 0 ] || say "   ... $((SECONDS - started)) s: $(tail -c 200 "$log" | tr '\r' '\n' | tail -n 1)"
    done
    wait "$worker" || status=$?
    [ "$status" -eq 0 ] || { tail -n 80 "$log" >&2; say "   the whole output: $log" >&2; }
  fi
  [ "$status" -eq 0 ] || { say "   failed after $((SECONDS - started)) s: $title" >&2; return "$status"; }
  say "   $((SECONDS - started)) s"
}

# build_preset PRESET TARGET...: from nothing each folder is compiled as one file, several times as fast. A build folder
# that is there is taken as it is: whoever changes files all day configures by hand and has each compiled by itself
# (and with what a debugger wants to know).
build_preset() {
  local preset=$1
  shift
  [ -f "$build/$preset/build.ninja" ] || cmake --preset "$preset" -DSONARO_WHOLE_FOLDERS=ON -DCMAKE_CXX_FLAGS_DEBUG=-g1
  cmake --build --preset "$preset" ${1:+--target "$@"}
}

# Wine, quiet. WINEPREFIX is the caller's to set. "-all" stands first, or Debian's wrapper asks for wine32.
wine_environment() {
  export WINEDEBUG=${WINEDEBUG:--all}
  export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-"mscoree,mshtml=;winemenubuilder.exe=d"}
}

# use_wine PREFIX [COMMAND]: one Wine server for all programs of this script, in this prefix. With the script ends the server,
# and then the command is run.
use_wine() {
  WINEPREFIX=$(realpath "$1")
  export WINEPREFIX
  wine_environment
  "$root/scripts/wine/start-server" "$WINEPREFIX"
  # shellcheck disable=SC2064
  trap "'$root/scripts/wine/stop-server' '$WINEPREFIX'; ${2:-:}" EXIT
}
