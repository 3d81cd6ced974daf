#!/bin/bash
# An icon in Windows' sizes from one of the program's drawings: make-icon.sh DRAWING.svg ICON.ico
# A white plate lies behind the lines, so that they can be seen on a light and on a dark desktop.
set -euo pipefail

drawing="$1"
icon="$2"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# The two colours that stand in the drawings become those of the light palette.
sed -e 's/#000000/#25519c/g' -e 's/#0000ff/#8fb6f7/g' \
  -e '0,/>/s//><rect x=".4" y=".4" width="23.2" height="23.2" rx="5" fill="#ffffff" stroke="none"\/>/' \
  "$drawing" >"$work/drawing.svg"
pictures=()
for size in 16 20 24 32 40 48 64 128 256; do
  rsvg-convert --width "$size" --height "$size" --output "$work/$size.png" "$work/drawing.svg"
  pictures+=("$work/$size.png")
done
icotool --create --output "$icon" "${pictures[@]}"
