#!/bin/bash
# Builds the manual, one HTML file and a file for each chapter that leads into it, with pictures that
# the program itself makes: tools/manual.sh PICTURES_PROGRAM FOLDER
# Inside a build folder: cmake --build build/release --target manual
set -euo pipefail

program="$1"
folder="$2"
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
chapters="$root/docs/manual"
version="$(sed -nE 's/^project\(Mortane VERSION ([0-9.]+) .*/\1/p' "$root/CMakeLists.txt")"

rm -rf "$folder"
mkdir -p "$folder/pictures"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# In no language, on no display, and with nothing that a person keeps.
python3 -B "$root/tools/manual/manual.py" pictures "$chapters" >"$work/pictures"
for scale in 1 2; do
  suffix=
  [[ "$scale" == 1 ]] || suffix="@${scale}x"
  env LC_ALL=C.UTF-8 HOME="$work" XDG_CONFIG_HOME="$work" XDG_DATA_HOME="$work" \
    XDG_RUNTIME_DIR="$work" MORTANE_SCHEME=light QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR="$scale" \
    QT_LOGGING_RULES='*=false' \
    "$program" "$folder/pictures" "$suffix" <"$work/pictures"
done

python3 -B "$root/tools/manual/manual.py" text "$chapters" >"$work/manual.md"
pandoc --from markdown-smart --to html5 --standalone --section-divs --toc --toc-depth=2 \
  --template "$root/tools/manual/template.html" --metadata title="Mortane" \
  --metadata version="$version" --output "$work/manual.html" "$work/manual.md"
python3 -B "$root/tools/manual/manual.py" page "$chapters" "$work/manual.html" "$folder"
rm -r "$folder/pictures"
