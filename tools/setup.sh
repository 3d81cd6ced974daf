#!/bin/bash
# Installs the distribution's packages that are missing for the given uses (see packages.txt):
# tools/setup.sh build tour test
set -euo pipefail

list="$(dirname "${BASH_SOURCE[0]}")/packages.txt"

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
  echo "setup: no Debian or Ubuntu; install these by hand: $(awk '!/^#/ {print $2}' "$list" | xargs)" >&2
  exit 0
fi

wanted=()
for use in "$@"; do
  while read -r package; do
    wanted+=("$package")
  done < <(awk -v use="$use" '$1 == use {print $2}' "$list")
done

# dpkg-query fails for the packages that it has never heard of, which are missing too.
known="$(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "${wanted[@]}" \
  2>/dev/null || true)"
present=" $(awk '$1 == "installed" {print $2}' <<<"$known" | xargs) "
missing=()
for package in "${wanted[@]}"; do
  [[ "$present" == *" $package "* ]] || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

as_root=()
if [[ $EUID -ne 0 ]]; then
  if ! command -v sudo >/dev/null; then
    echo "setup: not root and no sudo; as root: apt-get install ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi

apt() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y \
    -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

echo "setup: installing ${missing[*]}"
apt update
apt install --no-install-recommends "${missing[@]}"
