#!/bin/bash
# Cross-compiles the core and its tests for Windows: tools/build-windows.sh
# Installs the cross compiler, builds libxml2 and GoogleTest from the distribution's source
# packages into build/windows-libraries, then builds the preset "windows" with warnings as errors.
# With wine on the machine the tests that stand in build/windows/tests run there too.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
root="$PWD"
prefix="$root/build/windows-libraries"
toolchain="$root/cmake/mingw-w64.cmake"

tools/setup.sh windows

# The machine may know binary packages only. A copy of its own list of sources, turned into one of
# source packages and kept apart from the system's, needs no right to change anything.
source_options() {
  local lists="$1"
  mkdir -p "$lists/parts" "$lists/state/partial"
  local list
  for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [[ -f "$list" ]] || continue
    sed -n 's/^deb[[:space:]]/deb-src /p' "$list" >"$lists/parts/$(basename "$list" .list).list"
  done
  for list in /etc/apt/sources.list.d/*.sources; do
    [[ -f "$list" ]] || continue
    sed 's/^Types:.*/Types: deb-src/' "$list" >"$lists/parts/$(basename "$list")"
  done
  apt_options=(
    -o "Dir::Etc::SourceList=/dev/null" -o "Dir::Etc::SourceParts=$lists/parts"
    -o "Dir::State::Lists=$lists/state" -o "APT::Sandbox::User=root")
}

build_library() {
  local package="$1"
  shift
  local work="$prefix/source-$package"
  rm -rf "$work"
  mkdir -p "$work"
  (cd "$work" && apt-get "${apt_options[@]}" -q source "$package" >/dev/null)
  local source
  source="$(find "$work" -mindepth 1 -maxdepth 1 -type d | head -n 1)"
  cmake -S "$source" -B "$work/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" -DBUILD_SHARED_LIBS=OFF "$@"
  cmake --build "$work/build" --target install
  rm -rf "$work"
}

if [[ ! -f "$prefix/complete" ]]; then
  rm -rf "$prefix"
  mkdir -p "$prefix"
  source_options "$prefix/apt"
  apt-get "${apt_options[@]}" -q update
  without=()
  for part in FTP HTTP ICONV LZMA PROGRAMS PYTHON TESTS ZLIB; do
    without+=("-DLIBXML2_WITH_$part=OFF")
  done
  build_library libxml2 "${without[@]}"
  build_library googletest -DBUILD_GMOCK=OFF
  rm -rf "$prefix/apt"
  touch "$prefix/complete"
fi

cmake --preset windows
cmake --build --preset windows

if command -v wine >/dev/null; then
  find build/windows/tests -name '*_tests.exe' -print0 | sort -z | xargs -0 -n 1 wine
else
  echo "No wine here: the programs in build/windows/tests were compiled and not run."
fi
