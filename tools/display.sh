# Sourced by scripts that work a program with windows on a virtual display. They set `work`, a folder
# of their own, `guest`, the process of the program, and `title`, what its windows bear; `server` is
# the process of the display, for their cleanup. What a program says goes into "$work/errors".

fail() {
  echo "$(basename "$0" .sh): $1" >&2
  exit 1
}

# A display of that width and height. The server chooses a free one and tells its number. Without
# -noreset it would start afresh whenever its last client leaves, under the feet of a program that is
# just connecting.
start_server() {
  Xvfb -displayfd 3 -screen 0 "$1x$2x24" -nolisten tcp -noreset 3>"$work/display" >/dev/null 2>&1 &
  server=$!
  for _ in {1..400}; do
    [[ ! -s "$work/display" ]] || break
    sleep 0.03
  done
  [[ -s "$work/display" ]] || fail "no virtual display"
  DISPLAY=":$(<"$work/display")"
  export DISPLAY
}

# Windows of the program that are on the display; its title is theirs.
windows() {
  xdotool search --onlyvisible --name "^$title\$" 2>/dev/null || true
}

# Waits for that many windows. The smallest one, a box where there is one, goes into `box`, the
# largest one into `main`.
await_windows() {
  local found
  for _ in {1..400}; do
    mapfile -t found < <(windows)
    if [[ ${#found[@]} -eq "$1" ]]; then
      mapfile -t found < <(for window in "${found[@]}"; do
        xdotool getwindowgeometry --shell "$window" |
          awk -F= -v id="$window" '/^(WIDTH|HEIGHT)/ {n = n ? n * $2 : $2} END {print n, id}'
      done | sort -n | cut -d' ' -f2)
      box="${found[0]}"
      main="${found[-1]}"
      return 0
    fi
    kill -0 "$guest" 2>/dev/null || fail "the program has ended: $(<"$work/errors")"
    sleep 0.03
  done
  fail "${#found[@]} windows instead of $1"
}

# Out by the keys given, as a person leaves.
leave_guest() {
  xdotool key "$@"
  await_windows 2
  xdotool windowfocus --sync "$box" key Return
  wait "$guest" || fail "the program ended with $?: $(<"$work/errors")"
  guest=
}
