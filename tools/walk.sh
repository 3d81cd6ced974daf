#!/bin/bash
# Walks over a window at random, on all benches in turn:
#
#   tools/walk.sh EVENTS [WINDOW]          a long walk; WINDOW is main (as a rule) or wizard
#   tools/walk.sh repeat WINDOW BENCH SEED EVENTS   one of its parts again
#
# A walk is made of parts, each a process with a seed of its own. build/walk/WINDOW.done lists the
# parts that were made; a walk that was stopped goes on with the first that is missing, and one that
# was made is made longer by more EVENTS. What did not hold stands in build/walk/WINDOW.failed, with
# the command that repeats it. Takes one processor, some 2 ms an event. With MORTANE_WALK_BUILT=1 the
# program is used as it was built before.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
part=2500  # events
longest=900  # seconds that a part may take

usage() {
  sed -n '4,5s/^#   //p' "tools/walk.sh" >&2
  exit 2
}

build() {
  tools/setup.sh build test
  cmake --preset walk
  cmake --build --preset walk --target walk
}
program=build/walk/tests/gui/walk/walk
[[ $# -gt 0 ]] || usage

if [[ "$1" == repeat ]]; then
  [[ $# -eq 5 ]] || usage
  build >&2
  exec "$program" "${@:2}"
fi

events="$1"
window="${2:-main}"
[[ "$events" =~ ^[0-9]+$ && "$window" =~ ^(main|wizard)$ ]] || usage
[[ -n "${MORTANE_WALK_BUILT:-}" ]] || build >&2
mapfile -t benches < <("$program")
done="build/walk/$window.done"
failed="build/walk/$window.failed"
touch "$done" "$failed"
made=0
for ((seed = 1; made < events; ++seed)); do
  for bench in "${benches[@]}"; do
    ((made < events)) || break
    made=$((made + part))
    grep -qx "$bench $seed" "$done" && continue
    status=0
    timeout "$longest" "$program" "$window" "$bench" "$seed" "$part" \
      >"build/walk/$window.output" 2>"build/walk/$window.errors" || status=$?
    if ((status != 0)); then
      {
        echo "tools/walk.sh repeat $window $bench $seed $part   # status $status"
        sed 's/^/  /' "build/walk/$window.output"
        tail -n 20 "build/walk/$window.errors" | grep -v '^This plugin' | sed 's/^/  /' || true
      } | tee -a "$failed"
    fi
    echo "$bench $seed" >>"$done"
  done
done
echo "$made events over the window \"$window\"; failed: $(grep -c '^tools' "$failed" || true)"
[[ ! -s "$failed" ]]
