#!/bin/bash
# Runs the tests of a preset for Windows under Wine and says how many passed; arguments behind the
# preset go to ctest: tools/windows/run-tests.sh windows
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
preset="$1"
shift

# The offscreen platform looks here for fonts, and for nothing else.
fonts="$(tools/windows/cache.sh)/prefix/lib/fonts"
mkdir -p "$fonts"
cp /usr/share/fonts/truetype/dejavu/DejaVuSans{,-Bold,Mono}.ttf "$fonts/"

# Windows that a library of the tests shows need a display.
work="$(mktemp -d)"
source tools/display.sh
start_server 1024 768
trap 'kill "$server"; rm -rf "$work"' EXIT

# Makes what Wine needs, which takes longer than the listing of tests may.
tools/windows/wine.sh --collect cmd /c exit

# A process of Wine's that stays as long as this one: the others start quickly beside it.
{ tail --pid=$$ -f /dev/null | tools/windows/wine.sh cmd; } >/dev/null 2>&1 &

rm -rf "build/$preset/results"
result=0
ctest --preset "$preset" --parallel "$(nproc)" "$@" </dev/null || result=$?
python3 tools/test-results.py "build/$preset/results" || result=1
exit "$result"
