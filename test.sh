#!/bin/bash
# Sets up, builds with sanitizers and runs every test and check; arguments go to ctest:
# ./test.sh -R Dom
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
tools/setup.sh build tour test

cmake --preset asan </dev/null
cmake --build --preset asan </dev/null
ctest --preset asan --parallel "$(nproc)" "$@" </dev/null
