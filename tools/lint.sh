#!/bin/bash
# The linters, clang-tidy and clazy (level 1), over the whole tree, or over the given files; a header
# is looked at through a source that includes it. Installs what it needs. Both linters share clang's
# precompiled headers, in build/lint.
# tools/lint.sh [file...]
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/setup.sh build test bench lint

folder=build/lint
cmake --preset lint </dev/null >/dev/null
ninja -C "$folder" -t targets all | sed -nE 's/^([^ ]*cmake_pch\.hxx\.pch|[a-z_]+_autogen): .*/\1/p' |
  xargs cmake --build "$folder" --target >/dev/null

known="$(python3 -c 'import json, os, sys
names = (os.path.relpath(entry["file"]) for entry in json.load(open(sys.argv[1])))
print("\n".join(sorted({name for name in names if not name.startswith("build/")})))' \
  "$folder/compile_commands.json")"

# A source that includes the header: its own first.
source_of() {
  local own="${1%.h}.cpp" name="${1#*/}"
  if grep -qxF "$own" <<<"$known"; then
    echo "$own"
  else
    xargs grep -lF "\"$name\"" <<<"$known" | head -n 1
  fi
}

if [[ $# -eq 0 ]]; then
  sources="$known"
else
  sources=
  for file in "$@"; do
    found="$file"
    if [[ "$file" == *.h ]]; then found="$(source_of "$file")"; fi
    if grep -qxF "${found:-none}" <<<"$known"; then
      sources+="$found"$'\n'
    else
      echo "lint: not built on this system, so not looked at: $file" >&2
    fi
  done
  sources="$(sort -u <<<"$sources" | sed '/^$/d')"
  [[ -n "$sources" ]] || exit 0
fi

result=0
xargs -P "$(nproc)" -n 8 clang-tidy -p "$folder" --quiet <<<"$sources" 2>/dev/null || result=1
# clazy's exit code tells of errors alone; what it has to say of this tree's files is on its lines.
said="$(xargs -P "$(nproc)" -n 8 clazy-standalone -p "$folder" --checks=level1 \
  --header-filter="^$PWD/(src|tests|benchmarks)/" <<<"$sources" 2>&1)" || result=1
if grep -E '^[^ ]+:[0-9]+:[0-9]+: (warning|error): ' <<<"$said" | sort -u; then result=1; fi
exit "$result"
