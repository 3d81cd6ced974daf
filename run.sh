#!/bin/bash
# Sets up, builds and starts Mortane; arguments go to the program: ./run.sh /SIM
# With --wizard as the first argument it starts the wizard: ./run.sh --wizard /SIM
# With --ctl it runs the program of the command line: ./run.sh --ctl compare --sim file.xml
# Without a display it makes the tour instead: a picture of every page and step in ./tour.
set -euo pipefail

start=mortane
if [[ "${1:-}" == --wizard ]]; then
  start=sadrel
  shift
fi

ctl=
if [[ "${1:-}" == --ctl ]]; then
  ctl=yes
  shift
fi

root="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"

# What it answers goes to the standard output alone.
if [[ -n "$ctl" ]]; then
  (
    cd "$root"
    tools/setup.sh build
    cmake --preset release -DMORTANE_BENCHMARKS=OFF
    cmake --build --preset release --target mortanectl
  ) </dev/null >&2
  exec "$root/build/release/src/ctl/mortanectl" "$@"
fi

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
