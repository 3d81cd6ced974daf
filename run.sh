#!/bin/bash
# Sets up, builds and starts Mortane; arguments go to the program: ./run.sh /SIM
# With --wizard as the first argument it starts the wizard: ./run.sh --wizard /SIM
# Without a display it makes the tour instead: a picture of every page and step in ./tour.
set -euo pipefail

start=mortane
if [[ "${1:-}" == --wizard ]]; then
  start=sadrel
  shift
fi

root="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"

if [[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]]; then
  tour=
  "$root/tools/setup.sh" build
else
  tour=yes
  "$root/tools/setup.sh" build tour
fi

# Presets belong to the folder that cmake runs in; the program starts in the caller's.
(
  cd "$root"
  cmake --preset release -DMORTANE_BENCHMARKS=OFF
  cmake --build --preset release --target mortane sadrel
) </dev/null

declare -A programs=(
  [mortane]="$root/build/release/src/app/mortane"
  [sadrel]="$root/build/release/src/wizard/sadrel"
)
[[ -n "$tour" ]] || exec "${programs[$start]}" "$@"

echo "No display: making the tour of the programs on the simulated microscope."
"$root/tools/tour.sh" "${programs[mortane]}" "${programs[sadrel]}" "$root/tour" </dev/null
echo "The pictures are in $root/tour"
