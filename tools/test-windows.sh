#!/bin/bash
# All tests of the programs for Windows, under Wine: the core's, those of the controller library
# over COM, the pages' and windows', and the packed programs themselves. tools/test-windows.sh
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/setup.sh build manual windows package wine desktop
tools/windows/libraries.sh gui tests
tools/build-windows.sh
tools/windows/host32.sh tests
cmake --preset windows-gui
cmake --build --preset windows-gui

result=0
tools/windows/run-tests.sh windows-gui || result=1
python3 -B tests/windows/packed_programs.py dist/mortane-*-windows-x64 \
  build/windows-gui/tests/comserver build/windows32/tests/comserver || result=1
python3 -B tests/windows/installer.py dist/mortane-*-windows-x64 || result=1
exit "$result"
