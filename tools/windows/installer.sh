#!/bin/bash
# Makes an installer of a folder: tools/windows/installer.sh FOLDER INSTALLER.exe [VERSION]
# The folder holds mortane.exe, sadrel.exe and all that they need, as package.sh leaves it. What is
# installed and removed is its files, and nothing else that stands where they are installed.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
folder="$(cd "$1" && pwd)"
mkdir -p "$(dirname "$2")"
installer="$(cd "$(dirname "$2")" && pwd)/$(basename "$2")"
version="${3:-$(sed -n 's/^project(Mortane VERSION \([0-9.]*\) .*/\1/p' "$root/CMakeLists.txt")}"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

for program in mortane.exe sadrel.exe; do
  [[ -f "$folder/$program" ]] || { echo "installer: no $program in $folder" >&2; exit 1; }
done
python3 -B "$root/tools/windows/installer-files.py" "$folder" >"$work/files.nsh"
"$root/packaging/windows/make-icon.sh" \
  "$root/src/widgets/resources/icons/emblem.svg" "$work/mortane.ico"
makensis -V2 -WX -INPUTCHARSET UTF8 -DVERSION="$version" -DFILES="$work/files.nsh" \
  -DICON="$work/mortane.ico" -DOUTPUT="$installer" "$root/packaging/windows/installer.nsi"
