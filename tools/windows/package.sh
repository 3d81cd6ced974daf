#!/bin/bash
# Puts the programs for Windows, their manual and all that they need into one folder and one .zip:
# tools/windows/package.sh BUILD_FOLDER DIST_FOLDER MANUAL_FOLDER
# Fails when a program or library there needs a DLL that neither stands beside it nor belongs to
# an unprepared Windows 10 (packaging/windows/system-dlls.txt).
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
build="$(cd "$1" && pwd)"
mkdir -p "$2"
dist="$(cd "$2" && pwd)"
manual="$(cd "$3" && pwd)"
prefix="$("$root/tools/windows/cache.sh")/prefix"
prefixed=x86_64-w64-mingw32
version="$(sed -n 's/^project(Mortane VERSION \([0-9.]*\) .*/\1/p' "$root/CMakeLists.txt")"
name="mortane-$version-windows-x64"
folder="$dist/$name"

rm -rf "$folder" "$dist/$name.zip"
mkdir -p "$folder/platforms" "$folder/licences/gcc"

cp "$build/src/app/mortane.exe" "$build/src/wizard/sadrel.exe" "$build/src/ctl/mortanectl.exe" \
  "$root/build/windows32/src/controller/com/host/mortane-host32.exe" "$folder/"
cp -r "$manual" "$folder/manual"
for library in Core Gui Widgets; do
  cp "$prefix/bin/Qt6$library.dll" "$folder/"
done
cp "$prefix/plugins/platforms/qwindows.dll" "$folder/platforms/"
for library in libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll; do
  cp "$("$prefixed-g++-posix" -print-file-name="$library")" "$folder/"
done
find "$folder" \( -name '*.exe' -o -name '*.dll' \) -exec "$prefixed-strip" {} +

sed "s/@version@/$version/" "$root/packaging/windows/README.txt" | sed 's/$/\r/' \
  >"$folder/README.txt"
sed 's/$/\r/' "$root/LICENSE" >"$folder/licences/Mortane.txt"
for package in qt6-base libxml2; do
  cp -r "$prefix/licences/$package" "$folder/licences/"
done
# The licence of libxml2 and the "copyright" beside it have one name on Windows.
mv "$folder/licences/libxml2/Copyright" "$folder/licences/libxml2/licence.txt"
cp "/usr/share/doc/g++-mingw-w64-x86-64-posix/copyright" "$folder/licences/gcc/"
cp "/usr/share/doc/mingw-w64-x86-64-dev/copyright" "$folder/licences/gcc/mingw-w64"

same="$(cd "$folder" && find . | sort -f | uniq -Di)"
if [[ -n "$same" ]]; then
  echo "package: one name on Windows:" $same >&2
  exit 1
fi
python3 -B "$root/tools/windows/imports.py" "$folder" "$root/packaging/windows/system-dlls.txt"
(cd "$dist" && cmake -E tar cf "$name.zip" --format=zip "$name")
echo "$folder: $(du -sh --apparent-size "$folder" | cut -f1)," \
  "$name.zip: $(du -h --apparent-size "$dist/$name.zip" | cut -f1)"
