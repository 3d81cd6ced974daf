#!/bin/sh
# Writes the bench files in benches/ anew from the built-in benches, one element a line.
# usage: tools/write-benches.sh build/dev/tests/controller/write_benches
set -eu
program=$1
folder=$(dirname "$0")/../benches
"$program" "$folder"
for file in "$folder"/*.xml; do
  xmllint --format --output "$file" "$file"
done
