#!/bin/bash
# Sets up, builds with sanitizers and runs every test and check; arguments go to ctest:
# ./test.sh -R Dom
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
tools/setup.sh build tour test

cmake --preset asan </dev/null
cmake --build --preset asan </dev/null
# A suite is one test of ctest; its single tests leave their results here.
rm -rf build/asan/results
result=0
ctest --preset asan --parallel "$(nproc)" "$@" </dev/null || result=$?
python3 tools/test-results.py build/asan/results || result=1
exit "$result"
