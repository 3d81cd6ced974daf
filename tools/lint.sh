#!/bin/bash
# The linters, clang-tidy and clazy (level 1), over the whole tree, or over the given files; a header
# is looked at through a source that includes it. A source that was looked at without a finding, and
# that has not changed since with all that it includes, is not looked at again. Installs what it
# needs. Both linters share clang's precompiled headers, in build/lint.
# tools/lint.sh [file...]
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/setup.sh build test bench lint

folder=build/lint
cmake --preset lint </dev/null >/dev/null
prepared="$(ninja -C "$folder" -t targets all | sed -nE 's/^([^ ]*cmake_pch\.hxx\.pch): .*/\1/p' |
  xargs cmake --build "$folder" --target 2>&1)" || { echo "$prepared" >&2; exit 1; }

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

# clang-tidy's checks, on this tree's declarations alone (see lint/OwnCode.cpp).
plugin="$folder/libOwnCode.so"
if [[ ! -e "$plugin" || tools/lint/OwnCode.cpp -nt "$plugin" ]]; then
  clang++ -std=c++17 -O1 -fPIC -fno-rtti -shared \
    -isystem "$(clang++ -print-resource-dir)/../../../include" tools/lint/OwnCode.cpp -o "$plugin"
fi

# What both linters have to say of one source; nothing leaves the file that its key names.
look() {
  local folder="$1" key="$2" source="$3" said clazy result=0
  local tidy=() tidied=mortane-own-code checks=level1
  if [[ "$source" == tests/* ]]; then
    # Templates that a test calls, most of them GoogleTest's, are not followed into by the analyzer:
    # nine tenths of its time go there.
    for argument in -analyzer-config c++-template-inlining=false; do
      tidy+=(--extra-arg=-Xclang "--extra-arg=$argument")
    done
    # The columns of a table stand in the order in which a reader wants them.
    tidied+=,-clang-analyzer-optin.performance.Padding
  fi
  # GoogleTest and Google Benchmark register each of theirs by a static object. A test's listener
  # ends before what its handler refers to; clazy looks at the sender alone.
  if [[ "$source" != src/* ]]; then checks+=,no-non-pod-global-static,no-lambda-in-connect; fi
  said="$(clang-tidy -p "$folder" --quiet --load "$folder/libOwnCode.so" \
    --checks="$tidied" "${tidy[@]}" "$source" 2>/dev/null)" || result=1
  # clazy's exit code tells of errors alone; what it has to say of this tree's files is on its lines.
  clazy="$(clazy-standalone -p "$folder" --checks="$checks" \
    --header-filter="^$PWD/(src|tests|benchmarks)/" "$source" 2>&1)" || result=1
  clazy="$(grep -E '^[^ ]+:[0-9]+:[0-9]+: (warning|error): ' <<<"$clazy" | sort -u)"
  [[ -z "$clazy" ]] || result=1
  if [[ $result -eq 0 ]]; then touch "$folder/silent/$key"; else echo "lint: $source"; fi
  sed '/^$/d' <<<"$said"$'\n'"$clazy"
  return "$result"
}
export -f look

mkdir -p "$folder/silent"
result=0
python3 -B tools/lint/changed.py "$folder" .clang-tidy tools/lint.sh tools/lint/OwnCode.cpp \
  <<<"$sources" |
  xargs -r -P "$(nproc)" -n 2 bash -c 'look "$@"' look "$folder" || result=1
exit "$result"
