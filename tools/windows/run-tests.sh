#!/bin/bash
# Runs the tests of a preset for Windows under Wine and says how many passed; arguments behind the
# preset go to ctest: tools/windows/run-tests.sh windows
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
preset="$1"
shift

# A process of Wine's that stays until its input ends: the others start quickly beside it.
tools/windows/wine.sh cmd < <(sleep infinity) >/dev/null 2>&1 &
keeper=$!
trap 'kill "$keeper"; wait' EXIT

rm -rf "build/$preset/results"
result=0
ctest --preset "$preset" --parallel "$(nproc)" "$@" </dev/null || result=$?
python3 tools/test-results.py "build/$preset/results" || result=1
exit "$result"
