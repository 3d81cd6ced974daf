#!/bin/bash
# The tour: starts the programs on the simulated microscope under a virtual display, goes through
# their pages, steps and sections by keyboard, and leaves a picture of each in a folder, in both
# palettes and at 100 % and 200 %:
# tools/tour.sh PROGRAM WIZARD FOLDER
# The palette is asked of the programs by MORTANE_SCHEME, which stands in for the system's. What a
# key brings about is waited for in the window's picture; a change that does not come ends the tour.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/display.sh"

program="$1"
wizard="$2"
folder="$3"
width=1152
height=740
# Sections of the pages and of the wizard's steps, 0 for one without a bar, and the section that a
# page begins with. The joypad's section is there only while one is plugged in.
sections=(0 3 3 2 3 5)
first_sections=(1 1 1 1 1 2)
step_sections=(0 0 3 3 2 0 3 0 2 0)

work="$(mktemp -d)"
# Where no session has left the place of its window, nor anything else.
export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data"
server=
guest=
pictures=()
cleanup() {
  [[ -z "$guest" ]] || kill "$guest" 2>/dev/null || true
  [[ -z "$server" ]] || kill "$server" 2>/dev/null || true
  wait
  rm -rf "$work"
}
trap cleanup EXIT

# A sum over a part of the window, given at 100 %: width, height, left, top.
part() {
  import -silent -window "$main" -crop \
    "$(($1 * percent / 100))x$(($2 * percent / 100))+$(($3 * percent / 100))+$(($4 * percent / 100))" \
    rgb:- | cksum
}

# The title of a page changes only with the page, the strip of the wizard's steps only with the
# step, and the line with the title and the bar of sections with the section and with the focus.
title() { part 176 30 108 76; }
steps() { part 170 560 0 0; }
header() { part "$((width - 108))" 30 108 76; }
step_header() { part "$((width - 180))" 30 180 60; }

# Presses the keys and waits until the part is another. A program may drop a key that comes while it
# loads, so they are pressed again after a while.
press_until() {
  local shown="$1" before
  shift
  before="$($shown)"
  for _ in {1..4}; do
    xdotool key "$@"
    for _ in {1..100}; do
      [[ "$($shown)" == "$before" ]] || return 0
      sleep 0.02
    done
  done
  fail "no change of the $shown after $*, for $out/$number.png"
}

# The window as it stands once two pictures in a row are the same.
take_picture() {
  local last="" now="" raw
  raw="$(mktemp -p "$work")"
  for _ in {1..50}; do
    import -silent -window "$main" "ppm:$raw"
    now="$(cksum <"$raw")"
    [[ "$now" != "$last" ]] || break
    last="$now"
  done
  mkdir -p "$out"
  { convert "ppm:$raw" -quality 15 "png24:$out/$1.png" && rm "$raw"; } &
  pictures+=($!)
}

# Pictures of the sections but the first, by the arrow that chooses in their bar.
take_sections() {
  local shown="$1" count="$2" section
  for ((section = 2; section <= count; section++)); do
    press_until "$shown" Right
    take_picture "$number-$section"
  done
}

# How light the lightest spot of a part is, in per cent.
lightest() {
  import -silent -window "$main" -crop \
    "$(($1 * percent / 100))x$(($2 * percent / 100))+$(($3 * percent / 100))+$(($4 * percent / 100))" \
    -format '%[fx:int(100*maxima)]' info:-
}

# Starts the program and takes it through the box that tells of the simulation. The name of a page
# or step that the microscope enables is light once it is connected and loaded.
start_guest() {
  MORTANE_SCHEME="$2" QT_SCALE_FACTOR="$((percent / 100))" QT_QPA_PLATFORM=xcb \
    "$1" /SIM 2>"$work/errors" &
  guest=$!
  await_windows 2
  xdotool windowfocus --sync "$box" key Return
  await_windows 1
  xdotool windowfocus --sync "$main" mousemove --window "$main" 0 0
  for _ in {1..400}; do
    [[ "$(lightest "${@:3}")" -lt 60 ]] || return 0
    sleep 0.05
  done
  fail "the program does not load"
}

tour() {
  local scheme="$1" percent="$2" out="$folder/$1-$2" number section title=Mortane
  start_guest "$program" "$scheme" 100 78 0 480

  # The first page button gets the focus; from there the arrow goes to the next one.
  xdotool mousemove --window "$main" "$((52 * percent / 100))" "$((100 * percent / 100))" click 1 \
    mousemove --window "$main" 0 0
  for ((number = 1; number <= ${#sections[@]}; number++)); do
    [[ "$number" -eq 1 ]] || press_until title Down space
    if [[ "${sections[number - 1]}" -eq 0 ]]; then
      take_picture "$number"
      continue
    fi
    press_until header Tab
    for ((section = first_sections[number - 1]; section > 1; section--)); do
      press_until header Left
    done
    take_picture "$number"
    take_sections header "${sections[number - 1]}"
    press_until header shift+Tab
  done
  leave_guest alt+f key x
  echo "tour: ${#sections[@]} pages in $out"
}

# The wizard by keyboard, with all of its items chosen. A step begins in its bar of sections.
tour_wizard() {
  local scheme="$1" percent="$2" out="$folder/wizard-$1-$2" number title=Sadrel
  start_guest "$wizard" "$scheme" 80 54 88 116
  for ((number = 1; number <= ${#step_sections[@]}; number++)); do
    [[ "$number" -eq 1 ]] || press_until steps alt+n
    if [[ "$number" -eq 2 ]]; then
      # Custom, and below the three items of the standard the four others.
      xdotool key Down key Tab key Down key Down
      for _ in {1..4}; do press_until steps Down space; done
    fi
    take_picture "$number"
    take_sections step_header "${step_sections[number - 1]}"
  done
  leave_guest alt+c
  echo "tour: ${#step_sections[@]} steps in $out"
}

# Room for the window without its being made smaller to fit, at the largest scale.
start_server "$((width * 5 / 2))" "$((height * 5 / 2))"
for scheme in light dark; do
  for percent in 100 200; do
    tour "$scheme" "$percent"
    tour_wizard "$scheme" "$percent"
  done
done
wait "${pictures[@]}"
