#!/bin/bash
# The tour: starts the programs on the simulated microscope under a virtual display, goes through
# their pages and steps by keyboard and mouse, and leaves a picture of each in a folder, in both
# palettes and at 100 % and 200 %:
# tools/tour.sh PROGRAM WIZARD FOLDER
# The palette is asked of the programs by MORTANE_SCHEME, which stands in for the system's.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/display.sh"

program="$1"
wizard="$2"
folder="$3"
width=1152
height=740

work="$(mktemp -d)"
# Where no session has left the place of its window.
export XDG_CONFIG_HOME="$work/config"
server=
guest=
cleanup() {
  [[ -z "$guest" ]] || kill "$guest" 2>/dev/null || true
  [[ -z "$server" ]] || kill "$server" 2>/dev/null || true
  wait
  rm -rf "$work"
}
trap cleanup EXIT

# The window as it stands once two pictures in a row are the same.
take_picture() {
  local last="" now=""
  for _ in {1..50}; do
    import -window "$main" "png24:$1"
    now="$(convert "$1" rgb:- | cksum)"
    [[ "$now" != "$last" ]] || break
    last="$now"
    sleep 0.1
  done
}

# A sum over a part of a picture; the part is given at 100 %.
part() {
  convert "$1" -crop \
    "$(($2 * percent / 100))x$(($3 * percent / 100))+$(($4 * percent / 100))+$(($5 * percent / 100))" \
    rgb:- | cksum
}

# What stands beside a page's title changes only with the page and its section, the strip of page
# buttons only with the page, that of the wizard's steps only with the step.
header() { part "$1" "$width" 30 0 76; }
rail() { part "$1" 100 640 0 64; }
steps() { part "$1" 170 560 0 0; }

# Starts the program and takes it through the box that tells of the simulation.
start_guest() {
  MORTANE_SCHEME="$2" QT_SCALE_FACTOR="$((percent / 100))" QT_QPA_PLATFORM=xcb \
    "$1" /SIM 2>"$work/errors" &
  guest=$!
  await_windows 2
  xdotool windowfocus --sync "$box" key Return
  await_windows 1
  # What is typed or clicked while the window loads its pages is dropped.
  sleep 1
}

# Pictures of the sections of the page on show but the first. The bar of sections follows the page
# buttons, and its arrows choose; a page without one only moves its cursor.
tour_sections() {
  local first before now section=1
  xdotool key Tab
  take_picture "$work/section.png"
  first="$(header "$work/section.png")"
  before="$first"
  while true; do
    xdotool key Right
    sleep 0.2
    take_picture "$work/section.png"
    now="$(header "$work/section.png")"
    [[ "$now" != "$before" && "$now" != "$first" ]] || break
    before="$now"
    section=$((section + 1))
    cp "$work/section.png" "$out/$number-$section.png"
  done
  xdotool key shift+Tab
  sleep 0.2
  take_picture "$work/section.png"
}

tour() {
  local scheme="$1" percent="$2" out="$folder/$1-$2" number=1 title=Mortane
  mkdir -p "$out"
  start_guest "$program" "$scheme"

  # From the first page button on, the arrow goes to the next one that can be used.
  xdotool windowfocus --sync "$main" mousemove --window "$main" \
    "$((52 * percent / 100))" "$((100 * percent / 100))" click 1 mousemove --window "$main" 0 0
  take_picture "$out/1.png"
  while true; do
    tour_sections
    xdotool key Down key space
    sleep 0.2
    take_picture "$work/page.png"
    [[ "$(rail "$work/page.png")" != "$(rail "$work/section.png")" ]] || break
    number=$((number + 1))
    cp "$work/page.png" "$out/$number.png"
  done
  leave_guest alt+f key x
  echo "tour: $number pages in $out"
}

# The wizard by keyboard, with all of its items chosen.
tour_wizard() {
  local scheme="$1" percent="$2" out="$folder/wizard-$1-$2" number=1 title=Sadrel
  mkdir -p "$out"
  start_guest "$wizard" "$scheme"
  xdotool windowfocus --sync "$main" mousemove --window "$main" 0 0
  take_picture "$out/1.png"
  while true; do
    xdotool key alt+n
    sleep 0.4
    take_picture "$work/step.png"
    [[ "$(steps "$work/step.png")" != "$(steps "$out/$number.png")" ]] || break
    number=$((number + 1))
    if [[ "$number" -eq 2 ]]; then
      # Custom, and below the three items of the standard the four others.
      xdotool key Down key Tab key Down key Down
      for _ in {1..4}; do xdotool key Down key space; done
      sleep 0.2
      take_picture "$work/step.png"
    fi
    cp "$work/step.png" "$out/$number.png"
  done
  leave_guest alt+c
  echo "tour: $number steps in $out"
}

# Room for the window without its being made smaller to fit, at the largest scale.
start_server "$((width * 5 / 2))" "$((height * 5 / 2))"
for scheme in light dark; do
  for percent in 100 200; do
    tour "$scheme" "$percent"
    tour_wizard "$scheme" "$percent"
  done
done
