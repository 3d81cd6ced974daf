#!/bin/bash
# Builds the core and its tests for Windows and runs them under Wine; arguments go to ctest:
# tools/windows/core-tests.sh
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
tools/setup.sh windows wine
tools/windows/libraries.sh

cmake --preset windows
cmake --build --preset windows
tools/windows/run-tests.sh windows "$@"
