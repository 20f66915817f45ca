#!/bin/sh
# tools/wine_run.sh PREFIX DLLDIR PROGRAM [ARGS...] — runs a Windows program of the cross
# build under Wine, quietly and headless: the emulator of the Windows build's tests.
#   tools/wine_run.sh PREFIX DLLDIR --setup   creates the prefix afresh and warms it up.
# PREFIX is the Wine prefix (under the build directory); DLLDIR holds zor.dll.
# Under Wine no ordinary process has a console (its title reads empty), so records for
# units 0 and 6 would go to the output window; ZOR_ASSUME_CONSOLE=1 sends them to the
# unit instead. A caller that wants the window sets ZOR_ASSUME_CONSOLE=0.
set -eu
prefix=$1
dlldir=$2
shift 2
export WINEPREFIX="$prefix" WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
export WINEPATH="$dlldir"
: "${ZOR_ASSUME_CONSOLE:=1}"
export ZOR_ASSUME_CONSOLE
stamp="$prefix/.zor-last-run"

# A fresh prefix costs about 7 s. Each program then costs about 0.1 s while a wineserver
# and Wine's own services are running, and 2.5 s or more when it has to start them: so
# the server is kept (-p60: until a minute after its last program) and warmed up with
# wineboot whenever no program has started in the last 50 s.
warm_up() {
  wineserver -p60 2>/dev/null || true
  wine wineboot "$@" >/dev/null 2>&1 || true
  touch "$stamp"
}

if [ "${1:-}" = --setup ]; then
  if [ -d "$prefix" ]; then
    wineserver -k 2>/dev/null || true
    rm -rf "$prefix"
  fi
  mkdir -p "$prefix"
  warm_up -i
  exit 0
fi

# ctest runs programs in parallel: one of them makes the prefix or warms it up.
if [ -z "$(find "$stamp" -newermt '-50 seconds' 2>/dev/null)" ]; then
  mkdir -p "$prefix"
  exec 9>"$prefix.lock"
  flock 9
  if [ -z "$(find "$stamp" -newermt '-50 seconds' 2>/dev/null)" ]; then
    if [ -f "$prefix/system.reg" ]; then warm_up; else warm_up -i; fi
  fi
  exec 9>&-
fi
touch "$stamp"
exec wine "$@"
