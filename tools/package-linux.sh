#!/bin/bash
# Builds the programs optimised and packs them for the Debian release of this machine:
# dist/mortane_VERSION_amd64.deb, with the dependencies that they really have, and looks at it with
# the distribution's checker.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/setup.sh build manual linux-package

# The distribution's own flags, with all of its hardening and without what only a debugger needs.
export DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_MAINT_STRIP=-g
CXXFLAGS="$(dpkg-buildflags --get CPPFLAGS) $(dpkg-buildflags --get CXXFLAGS)" \
  LDFLAGS="$(dpkg-buildflags --get LDFLAGS)" cmake --preset package </dev/null
cmake --build --preset package --target all manual </dev/null
# What stands in the package belongs to root, and nobody else may write it.
umask 022
rm -f dist/mortane_*.deb
(cd build/package && cpack -G DEB >cpack.log 2>&1) || { cat build/package/cpack.log >&2; exit 1; }
rm -rf dist/_CPack_Packages

package="$(echo dist/mortane_*.deb)"
lintian --allow-root --fail-on error,warning --show-overrides "$package"
echo "$package"
