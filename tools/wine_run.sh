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

# A fresh prefix costs about 7 s; a wineserver kept alive between programs (-p60: until a
# minute after the last one ends) saves each program about 2.5 s of server start-up.
setup() {
  mkdir -p "$prefix"
  wineserver -p60
  wine wineboot -i >/dev/null 2>&1 || true
  touch "$prefix/.zor-ready"
}

if [ "${1:-}" = --setup ]; then
  if [ -d "$prefix" ]; then
    wineserver -k 2>/dev/null || true
    rm -rf "$prefix"
  fi
  setup
  exit 0
fi

# ctest runs programs in parallel: the first one to find no prefix makes it.
if [ ! -f "$prefix/.zor-ready" ]; then
  mkdir -p "$(dirname "$prefix")"
  exec 9>"$prefix.lock"
  flock 9
  [ -f "$prefix/.zor-ready" ] || setup
  exec 9>&-
fi
exec wine "$@"
