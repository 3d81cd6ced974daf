#!/bin/bash
# Runs a program for Windows under Wine: tools/windows/wine.sh PROGRAM [ARGUMENTS...]
# With --collect before the program, what it writes appears when it has ended. Wine's services and
# its desktop, which a program may start, have its output and hold it open beyond its end.
# With --end instead of a program it ends all that runs under Wine, its services too.
# Its drives and registry stand in MORTANE_WINE, or in build/wine of this tree. The first call makes
# them, as Windows 10.
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
export WINEPREFIX="${MORTANE_WINE:-$here/../../build/wine}"
export WINEDEBUG="${WINEDEBUG:--all}"
# Without these it asks to install what no program here needs, and adds menus to the desktop.
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml,winemenubuilder.exe=}"

if [[ "${1:-}" == --end ]]; then
  wineserver -k || true
  exit 0
fi

# What is started under the lock must not hold it open: Wine's services outlive the call. Those of the
# first start have to be gone before the others begin.
if [[ ! -f "$WINEPREFIX/ready" ]]; then
  mkdir -p "$WINEPREFIX"
  (
    flock 9
    if [[ ! -f "$WINEPREFIX/ready" ]]; then
      DISPLAY='' wine wineboot -i 9>&-
      wine winecfg -v win10 9>&-
      wineserver -k || true
      wineserver -w
      touch "$WINEPREFIX/ready"
    fi
  ) 9>"$WINEPREFIX/lock" >/dev/null
fi

# Wine's services start with the first program and end with the last. A program that begins while they
# end may wait for them in vain, so they are started by themselves and stay for a minute.
if ! wineserver -k0; then
  (
    flock 9
    wineserver -k0 || { wineserver -p60 9>&- && wine cmd /c exit 9>&-; }
  ) 9>"$WINEPREFIX/lock"
fi >/dev/null 2>&1 </dev/null

# Windows shares every drive with its administrators.
shares="$WINEPREFIX/dosdevices/unc/localhost"
if [[ ! -e "$shares/C\$" ]]; then
  mkdir -p "$shares"
  ln -sfn ../../../drive_c "$shares/C\$"
fi

# Where the libraries stand that a program built with shared ones needs.
path=("$("$here/cache.sh")/prefix/bin" /usr/lib/gcc/x86_64-w64-mingw32/12-posix
  /usr/x86_64-w64-mingw32/lib)
export WINEPATH="${WINEPATH:-$(printf 'Z:%s;' "${path[@]//\//\\}")}"
if [[ "${1:-}" == --collect ]]; then
  shift
  output="$(mktemp -d)"
  trap 'rm -rf "$output"' EXIT
  status=0
  wine "$@" >"$output/out" 2>"$output/error" || status=$?
  cat "$output/out"
  cat "$output/error" >&2
  exit "$status"
fi
exec wine "$@"
