#!/bin/bash
# An icon of a program as SVG from one of the program's drawings: icon-drawing.sh DRAWING.svg ICON.svg
# A white plate lies behind the lines, so that they can be seen on a light and on a dark desktop.
set -euo pipefail

# The two colours that stand in the drawings become those of the light palette.
sed -e 's/#000000/#25519c/g' -e 's/#0000ff/#8fb6f7/g' \
  -e '0,/>/s//><rect x=".4" y=".4" width="23.2" height="23.2" rx="5" fill="#ffffff" stroke="none"\/>/' \
  "$1" >"$2"
