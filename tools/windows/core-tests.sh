#!/bin/bash
# Builds the core and its tests for Windows and runs them under Wine; arguments go to ctest:
# tools/windows/core-tests.sh
# Where Wine runs programs of 32 bits, the host of libraries of 32 bits is tested with such a library
# too. On Debian that takes dpkg --add-architecture i386 and the package wine32:i386.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
tools/setup.sh windows wine
tools/windows/libraries.sh tests
tools/windows/host32.sh tests

cmake --preset windows
cmake --build --preset windows

folder="$PWD/build/windows32/tests/comserver"
said="$(tools/windows/wine.sh --collect "$folder/mortane-host32.exe" </dev/null || true)"
if [[ "$said" == mortane-host32\ * ]]; then
  export MORTANE_TEST_HOST32="Z:${folder//\//\\}"
else
  echo "core-tests: this Wine runs no programs of 32 bits; the host is tested with 64" >&2
fi
tools/windows/run-tests.sh windows "$@"
