#!/bin/bash
# Sets up, builds and starts Mortane; arguments go to the program: ./run.sh /SIM
# Without a display it makes the tour instead: a picture of every page in ./tour.
set -euo pipefail

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
  cmake --build --preset release --target mortane
) </dev/null

program="$root/build/release/src/app/mortane"
[[ -n "$tour" ]] || exec "$program" "$@"

echo "No display: making the tour of the program on the simulated microscope."
"$root/tools/tour.sh" "$program" "$root/tour" </dev/null
echo "The pictures are in $root/tour"
