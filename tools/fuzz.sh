#!/bin/bash
# Fuzzes the reading of settings files for a number of seconds (60): tools/fuzz.sh [seconds]
# New inputs are kept in build/fuzz/corpus; one that breaks a promise is named at the end.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds="${1:-60}"
tools/setup.sh fuzz

cmake --preset fuzz -DCMAKE_CXX_COMPILER=clang++-14
cmake --build --preset fuzz --target settings_file_fuzz
mkdir -p build/fuzz/corpus
build/fuzz/tests/fuzz/settings_file_fuzz -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 \
  -max_len=65536 -artifact_prefix=build/fuzz/ build/fuzz/corpus tests/fuzz/corpus
