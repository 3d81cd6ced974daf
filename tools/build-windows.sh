#!/bin/bash
# Builds the programs for Windows and packs them in dist, as a folder, as a .zip and as an installer:
# tools/build-windows.sh
# What they need is built from the distribution's source packages first, once; docs/windows.md tells
# how long that takes. The pictures of the manual are made by the program as it is built for this
# machine.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/setup.sh build manual windows package
tools/windows/libraries.sh gui
tools/windows/host32.sh

cmake --preset pictures
cmake --build --preset pictures --target manual
cmake --preset windows-gui -D MORTANE_TESTS=OFF
cmake --build --preset windows-gui --target mortane sadrel mortanectl
tools/windows/package.sh build/windows-gui dist build/pictures/manual
version="$(sed -n 's/^project(Mortane VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)"
name="dist/mortane-$version-windows-x64"
tools/windows/installer.sh "$name" "$name-setup.exe"
