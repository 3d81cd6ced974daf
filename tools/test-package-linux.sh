#!/bin/bash
# Tries the Debian package in a bare system of its own, which it makes and removes; it takes root:
# tools/test-package-linux.sh [PACKAGE [SUITE]]
# SUITE is the release that the package was built for, by default that of this machine.
set -euo pipefail

source="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
if [[ "${1:-}" != --inside ]]; then
  package="$(realpath "${1:-$(echo "$source"/dist/mortane_*.deb)}")"
  suite="${2:-$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)}"
  "$source/tools/setup.sh" bare
  work="$(mktemp -d --tmpdir=/var/tmp mortane-bare-XXXXXX)"
  trap 'rm -rf --one-file-system "$work"' EXIT
  echo "package: a bare system, $suite"
  debootstrap --variant=minbase "$suite" "$work/root" >"$work/log" 2>&1 ||
    { tail -n 20 "$work/log" >&2; exit 1; }
  mkdir "$work/root/mnt/package"
  cp "$package" "$source/tools/display.sh" "$source/tests/package/in-bare-system.sh" \
    "$work/root/mnt/package"
  # Processes and mounts of its own, which go with it.
  unshare --mount --pid --fork --kill-child "$source/tools/test-package-linux.sh" --inside "$work/root"
  exit
fi

root="$2"
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
mount -t tmpfs tmpfs "$root/run"
mount -t tmpfs -o mode=1777 tmpfs "$root/tmp"
mkdir -m 1777 "$root/run/lock"
chroot "$root" /usr/bin/env -i PATH=/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 HOME=/root \
  /mnt/package/in-bare-system.sh
