#!/bin/bash
# Fuzzes a reader of files for a number of seconds (60): tools/fuzz.sh TARGET [SECONDS]
# TARGET is settings, bench, profile or journal. New inputs are kept in build/fuzz/corpus; one that
# breaks a promise is named at the end.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
target="${1:-}"
seconds="${2:-60}"
if [[ ! -d "tests/fuzz/corpus/$target" || -z "$target" ]]; then
  echo "tools/fuzz.sh TARGET [SECONDS], where TARGET is one of: $(ls tests/fuzz/corpus | xargs)" >&2
  exit 2
fi
tools/setup.sh fuzz

cmake --preset fuzz -DCMAKE_CXX_COMPILER=clang++-14
cmake --build --preset fuzz --target "${target}_fuzz"
mkdir -p "build/fuzz/corpus/$target"
"build/fuzz/tests/fuzz/${target}_fuzz" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 \
  -max_len=8192 -artifact_prefix="build/fuzz/$target-" -print_final_stats=1 \
  "build/fuzz/corpus/$target" "tests/fuzz/corpus/$target"
