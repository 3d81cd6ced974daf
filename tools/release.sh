#!/bin/bash
# From a clean checkout to checked packages with their checksums in dist:
# tools/release.sh [--windows]
# --windows makes the package for Windows, too, and works its programs under Wine; its libraries are
# built first, once (docs/windows.md tells how long that takes). The trial in a bare system takes
# root, by sudo where there is need. Run the tests before: ./test.sh
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
windows=
case "${1:-}" in
  --windows) windows=yes ;;
  "") ;;
  *)
    echo "release: $1 is no option; --windows is" >&2
    exit 2
    ;;
esac

if [[ -n "$(git status --porcelain)" ]]; then
  echo "release: the checkout is not clean:" >&2
  git status --short >&2
  exit 1
fi
version="$(sed -nE 's/^project\(Mortane VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt)"
grep -q "^## $version (" CHANGELOG.md ||
  { echo "release: CHANGELOG.md tells nothing of version $version" >&2; exit 1; }
as_root=()
[[ $EUID -eq 0 ]] || as_root=(sudo)

rm -rf dist
tools/package-linux.sh
"${as_root[@]}" tools/test-package-linux.sh "dist/mortane_${version}_$(dpkg --print-architecture).deb"
if [[ -n "$windows" ]]; then
  tools/setup.sh windows package wine desktop
  tools/build-windows.sh
  # The controller libraries that the programs are worked with need nothing of Qt.
  tools/windows/libraries.sh tests
  tools/windows/host32.sh tests
  cmake --preset windows
  cmake --build --preset windows \
    --target mortane_test_library mortane_test_server mortane_host_of_tests
  python3 -B tests/windows/packed_programs.py "dist/mortane-$version-windows-x64" \
    build/windows/tests/comserver build/windows32/tests/comserver
  python3 -B tests/windows/installer.py "dist/mortane-$version-windows-x64"
fi

cd dist
packages=(mortane_*.deb)
[[ -z "$windows" ]] || packages+=(mortane-*.zip mortane-*-setup.exe)
sha256sum "${packages[@]}" >SHA256SUMS
sha256sum --check --strict SHA256SUMS
echo "release: version $version in $PWD"
