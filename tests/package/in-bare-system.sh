#!/bin/bash
# Run as root in a bare Debian, with display.sh and the package beside it: installs the package, works
# the programs as a person of that machine, removes it, and looks for what is left.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source ./display.sh

package="$PWD/$(echo mortane_*.deb)"
work="$(mktemp -d)"
server=
guest=
export DEBIAN_FRONTEND=noninteractive
apt() {
  apt-get -q -y --no-install-recommends "$@" </dev/null >"$work/apt" 2>&1 ||
    fail "apt-get $*: $(tail -n 20 "$work/apt")"
}
step() { echo "package: $1"; }

# Everything that the system has but what only it changes: the lists and logs of its packages. /run and
# /tmp, which hold the locks of microscopes, end with the system and are file systems of their own.
files() {
  find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /home -o -path "$work" \
    -o -path "$PWD" -o -path /var/cache -o -path /var/log -o -path /var/lib/dpkg \
    -o -path /var/lib/apt \) -prune -o -print | sort
}

as_person() {
  runuser -u person -- env -C "$home" HOME="$home" DISPLAY="${DISPLAY:-}" \
    MORTANE_BENCH="${bench:-}" "$@"
}

start_guest() {
  title="$1"
  shift
  as_person "$@" 2>"$work/errors" >&2 &
  guest=$!
}

# Past the box that tells of the simulated microscope, to the window.
start_on_simulator() {
  start_guest "$@" /SIM
  await_windows 2
  xdotool windowfocus --sync "$box" key Return
  await_windows 1
  sleep 1
  xdotool windowfocus --sync "$main"
}

step "the package brings all that its programs need"
apt update
apt install "$package"
for program in mortane sadrel mortanectl; do
  version="$("$program" --version)"
  [[ "$version" == "$program "* ]] || fail "$program --version: $version"
done

# What works the programs from outside; it stays when the package goes.
apt install xvfb xdotool fonts-dejavu-core
apt remove mortane
apt autoremove
useradd --create-home person
# Stands in for the desktop's way to the person's browser.
printf '#!/bin/sh\necho "$1" >>"$HOME/opened"\n' >/usr/local/bin/xdg-open
chmod +x /usr/local/bin/xdg-open
home="$(getent passwd person | cut -d: -f6)"
files >"$work/before"
apt install "$package"
start_server 1400 900

step "the program and the wizard on the simulated microscope"
start_on_simulator Mortane mortane
xdotool key F1
for _ in {1..50}; do
  [[ ! -s "$home/opened" ]] || break
  sleep 0.1
done
opened="$(cat "$home/opened" 2>/dev/null || true)"
[[ "$opened" == file:///usr/share/doc/mortane/manual/system.html && -s "${opened#file://}" ]] ||
  fail "F1 opens \"$opened\""
leave_guest alt+f key x
start_on_simulator Sadrel sadrel
leave_guest alt+c

step "mortanectl on a copy of a bench"
as_person cp /usr/share/mortane/benches/Lantern.xml bench.xml
as_person mortanectl receive --bench bench.xml -o reference.xml
as_person sed -i 's/NAME="[^"]*"/NAME="Bay 4"/' reference.xml
as_person mortanectl send --bench bench.xml --yes reference.xml >"$work/sent"
as_person mortanectl compare --bench bench.xml reference.xml >"$work/compared" ||
  fail "not as it was sent: $(<"$work/compared")"

step "a home that cannot be written"
chmod -R a-w "$home"
start_on_simulator Mortane mortane
leave_guest alt+f key x
chmod -R u+w "$home"

step "the package is installed anew while its program runs"
start_on_simulator Mortane mortane
apt install --reinstall "$package"
leave_guest alt+f key x

step "the package is removed while its program has one of its benches open"
bench=/usr/share/mortane/benches/Lantern.xml start_guest Mortane mortane
await_windows 1
sleep 1
xdotool windowfocus --sync "$main"
apt remove mortane
apt autoremove
leave_guest alt+f key x

step "nothing is left but what belongs to the person"
kill "$server"
wait "$server" || true
server=
files >"$work/after"
diff "$work/before" "$work/after" || fail "left behind"
! dpkg-query --show mortane 2>/dev/null || fail "the package manager still knows the package"
find "$home/.local/share/Mortane/Backups" -name '*.xml' | grep -q . || fail "the backup is gone"
[[ -s "$home/reference.xml" && -s "$home/bench.xml" ]] || fail "a file of the person's is gone"
rm -rf "$work"
step "done"
