#!/bin/bash
# An icon in Windows' sizes from one of the program's drawings: make-icon.sh DRAWING.svg ICON.ico
set -euo pipefail

drawing="$1"
icon="$2"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

"$(dirname "${BASH_SOURCE[0]}")/../icon-drawing.sh" "$drawing" "$work/drawing.svg"
pictures=()
for size in 16 20 24 32 40 48 64 128 256; do
  rsvg-convert --width "$size" --height "$size" --output "$work/$size.png" "$work/drawing.svg"
  pictures+=("$work/$size.png")
done
icotool --create --output "$icon" "${pictures[@]}"
