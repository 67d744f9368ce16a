#!/usr/bin/env bash
# install-packages.sh [LIST...]: installs what is missing of the Debian packages in debian-packages.txt (and in further lists).
# Asks nothing and does nothing when all are there; needs root or sudo otherwise.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

# Some packages are there under another's name: what an installed one provides counts.
present=$(dpkg-query -W -f '${Status}|${Package}, ${Provides}\n' | sed -n 's/^install ok installed|//p' | tr ',' '\n' | sed 's/(.*//; s/ //g')
missing=()
while read -r package; do
    grep -qxF -- "$package" <<<"$present" || missing+=("$package")
done < <(sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$here/debian-packages.txt" "$@")
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Needs root or sudo to install: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi
echo "Installing ${#missing[@]} Debian packages: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
