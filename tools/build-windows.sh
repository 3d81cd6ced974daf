#!/bin/bash
# Builds the programs for Windows and packs them into one folder and one .zip in dist:
# tools/build-windows.sh
# What they need is built from the distribution's source packages first, once, in half an hour.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/setup.sh windows package
tools/windows/libraries.sh gui
tools/windows/host32.sh

cmake --preset windows-gui
cmake --build --preset windows-gui --target mortane sadrel mortanectl
tools/windows/package.sh build/windows-gui dist
