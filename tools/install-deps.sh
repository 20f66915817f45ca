#!/bin/sh
# tools/install-deps.sh [windows] — makes sure the Debian packages that the build, the
# tests and the examples need are installed: as root it installs the missing ones,
# otherwise it names them and fails. With "windows" it checks the cross toolchains and
# Wine of the Windows build instead.
set -eu
if [ "${1:-}" = windows ]; then
  packages="g++-mingw-w64-x86-64-posix gfortran-mingw-w64-x86-64-posix wine wine64 xvfb imagemagick"
else
  packages="cmake ninja-build g++ gfortran libgtest-dev libgmock-dev libbenchmark-dev pkg-config
            python3 python3-scipy python3-mpmath libgsl-dev libboost-math-dev"
fi
missing=""
for p in $packages; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing="$missing $p"
done
[ -z "$missing" ] && exit 0
if [ "$(id -u)" -ne 0 ]; then
  echo "Missing Debian packages:$missing" >&2
  echo "Install them with: sudo apt-get install$missing" >&2
  exit 1
fi
echo "Installing:$missing"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
# shellcheck disable=SC2086
apt-get install -y -qq --no-install-recommends $missing >/dev/null
