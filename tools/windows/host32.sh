#!/bin/bash
# Builds the host of libraries of 32 bits, and looks at what it needs: tools/windows/host32.sh [tests]
# With "tests" also the libraries that the tests have it load, beside a copy of it.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
targets=(mortane_host32)
tests=OFF
if [[ "${1:-}" == tests ]]; then
  targets+=(mortane_host_of_tests mortane_test_library mortane_faulty_library)
  tests=ON
fi

tools/windows/libraries.sh 32 "$@"
cmake --preset windows32 -D MORTANE_TESTS="$tests"
cmake --build --preset windows32 --target "${targets[@]}"
python3 -B tools/windows/imports.py build/windows32/src/controller/com/host \
  packaging/windows/system-dlls.txt
