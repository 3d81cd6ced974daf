#!/bin/bash
# Builds for Windows what the programs and their tests need, from the distribution's source
# packages: tools/windows/libraries.sh [gui] [32] [tests]
# libxml2 always, Qt with "gui", what the tests need with "tests"; with "32" all but Qt for 32 bits as
# well. All of it goes into the folder that cache.sh names and is built once.
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
cache="$("$here/cache.sh")"
mkdir -p "$cache"

# One build of a library at a time, also with two calls of this script.
exec 9>"$cache/lock"
flock 9

# The machine may know binary packages only. A copy of its own list of sources, turned into one of
# source packages and kept apart from the system's, needs no right to change anything.
know_source_packages() {
  local lists="$cache/apt"
  apt_options=(
    -o "Dir::Etc::SourceList=/dev/null" -o "Dir::Etc::SourceParts=$lists/parts"
    -o "Dir::State::Lists=$lists/state" -o "APT::Sandbox::User=root")
  [[ ! -d "$lists" ]] || return 0
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
  apt-get "${apt_options[@]}" -q update
}

# library PACKAGE SHARED LICENCE OPTIONS...: a stamp of its options says that it is there.
library() {
  local package="$1" shared="$2" licence="$3"
  shift 3
  mkdir -p "$prefix/stamps"
  local stamp="$prefix/stamps/$package"
  local wanted="$shared $*"
  [[ ! -f "$stamp" || "$(cat "$stamp")" != "$wanted" ]] || return 0

  know_source_packages
  local work="$cache/source-$package"
  rm -rf "$work"
  mkdir -p "$work"
  (cd "$work" && apt-get "${apt_options[@]}" -q source "$package" >/dev/null)
  local source
  source="$(find "$work" -mindepth 1 -maxdepth 1 -type d | head -n 1)"
  cmake -S "$source" -B "$work/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DBUILD_SHARED_LIBS="$shared" "$@"
  cmake --build "$work/build" --target install
  mkdir -p "$prefix/licences/$package"
  local text
  for text in $licence; do
    cp -r "$source/$text" "$prefix/licences/$package/"
  done
  cp "$source/debian/copyright" "$prefix/licences/$package/"
  rm -rf "$work"
  echo "$wanted" >"$stamp"
}

# without PREFIX SUFFIX NAMES...: one option a name, switched off.
without() {
  local before="$1" after="$2"
  shift 2
  options=()
  local name
  for name in "$@"; do
    options+=("-D$before$name$after=OFF")
  done
}

tests=OFF
[[ " $* " != *" tests "* ]] || tests=ON

# for_processor TOOLCHAIN FOLDER: what the core needs, and its tests.
for_processor() {
  toolchain="$here/../../cmake/$1.cmake"
  prefix="$cache/$2"
  without LIBXML2_WITH_ "" FTP HTTP ICONV LZMA PROGRAMS PYTHON TESTS ZLIB
  library libxml2 OFF Copyright "${options[@]}"
  if [[ "$tests" == ON ]]; then
    library googletest OFF LICENSE -DBUILD_GMOCK=OFF
  fi
  # Headers alone.
  library cli11 OFF LICENSE -DCLI11_BUILD_TESTS=OFF -DCLI11_BUILD_EXAMPLES=OFF -DCLI11_BUILD_DOCS=OFF
  library nlohmann-json3 OFF LICENSE.MIT -DJSON_BuildTests=OFF
}

# Behind || a failure in a function would not end the script.
if [[ " $* " == *" 32 "* ]]; then
  for_processor mingw-w64-i686 prefix32
fi
for_processor mingw-w64 prefix

if [[ " $* " == *" gui "* ]]; then
  host="$(dpkg-architecture -qDEB_HOST_MULTIARCH)"
  features=()
  # Modules, and what of the system they might use. The header that tablets need is not in the source
  # package.
  features+=(opengl vulkan sql network dbus concurrent xml printsupport tabletevent
    system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2
    system_doubleconversion pkg_config)
  # What stands in the core without being used here.
  features+=(cborstreamwriter commandlineparser concatenatetablesproxymodel hijricalendar
    identityproxymodel jalalicalendar sharedmemory systemsemaphore timezone transposeproxymodel
    xmlstreamwriter)
  # Image formats but PNG, BMP and XPM, the way of drawing for deep colours, other forms of text.
  features+=(direct2d1_1 gif ico imageformat_ppm imageformat_xbm jpeg movie pdf picture raster_64bit
    raster_fp systemtrayicon textmarkdownreader textmarkdownwriter textodfwriter undocommand
    whatsthis)
  # Controls, dialogs, and styles but Fusion.
  features+=(calendarwidget colordialog columnview datawidgetmapper datetimeedit dial errormessage
    fontcombobox fontdialog graphicseffect graphicsview inputdialog keysequenceedit lcdnumber mdiarea
    progressdialog splashscreen style_windows style_windowsvista syntaxhighlighter tableview
    tablewidget toolbox undoview wizard)
  # The library for tests costs minutes. Where it was built once it stays.
  ! grep -qs -e -DFEATURE_testlib=ON "$prefix/stamps/qt6-base" || tests=ON
  without FEATURE_ "" "${features[@]}"
  library qt6-base ON LICENSES -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$host/cmake" -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DINPUT_opengl=no -DFEATURE_testlib="$tests" \
    "${options[@]}"
fi
rm -rf "$cache/apt"
