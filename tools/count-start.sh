#!/bin/bash
# What the start of the programs costs, in figures that no load of the machine changes: the
# instructions from the start of the process to the idle first window (callgrind) and the most that
# the heap holds (massif), beside those of a window of the toolkit with one label:
# tools/count-start.sh [BUILD]
# BUILD is a folder of the release preset with the startup benchmark; without it the benchmark is
# built in build/release. Ends with an error where a ratio is above its limit.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
# What was reached, and 5 %, in hundredths of the window with one label.
declare -A most_instructions=([full]=207 [wizard]=209)
declare -A most_heap=([full]=105 [wizard]=105)

build="${1:-}"
if [[ -z "$build" ]]; then
  tools/setup.sh build bench
  build=build/release
  cmake --preset release >/dev/null
  cmake --build --preset release --target startup_benchmark
fi
program="$build/benchmarks/startup_benchmark"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# Nothing of the caller's settings takes part.
watched() {
  env -i PATH="$PATH" HOME="$work" XDG_RUNTIME_DIR="$work" LC_ALL=C.UTF-8 \
    QT_QPA_PLATFORM=offscreen valgrind "$@" 2>"$work/valgrind" || {
    cat "$work/valgrind" >&2
    return 1
  }
}
instructions() {
  watched --tool=callgrind --callgrind-out-file=/dev/null "$program" "--$1"
  awk '/Collected/ {print $NF}' "$work/valgrind"
}
heap() {
  watched --tool=massif --massif-out-file="$work/heap" "$program" "--$1"
  awk -F= '/^mem_heap_B=/ && $2 > most {most = $2} END {print most}' "$work/heap"
}

result=0
# compare WHAT WINDOW COUNT LABEL LIMIT
compare() {
  local ratio=$((($3 * 100 + $4 / 2) / $4))
  printf '%-12s %-7s %12d  %d.%02d\n' "$1" "$2" "$3" $((ratio / 100)) $((ratio % 100))
  if ((ratio > $5)); then
    printf 'more than %d.%02d\n' $(($5 / 100)) $(($5 % 100)) >&2
    result=1
  fi
}

for what in instructions heap; do
  label="$($what label)"
  printf '%-12s %-7s %12d\n' "$what" label "$label"
  declare -n most="most_$what"
  for window in full wizard; do
    compare "$what" "$window" "$($what "$window")" "$label" "${most[$window]}"
  done
done
exit "$result"
