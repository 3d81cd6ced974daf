#!/bin/bash
# Sets up, builds with sanitizers and runs every test and check; arguments go to ctest:
# ./test.sh -R Dom
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
tools/setup.sh build tour test

cmake --preset asan </dev/null
cmake --build --preset asan </dev/null
# A test of ctest runs the tests of whole source files; the single tests leave their results here.
rm -rf build/asan/results
result=0
# A report tells the last eight calls of an allocation; to keep thirty of each takes a twentieth of
# the time.
export ASAN_OPTIONS=${ASAN_OPTIONS-malloc_context_size=8}
# One more than there are processors: a fifth of the time tests wait for windows and programs.
ctest --preset asan --parallel $(($(nproc) + 1)) "$@" </dev/null || result=$?
python3 tools/test-results.py build/asan/results || result=1
exit "$result"
