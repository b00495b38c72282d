#!/usr/bin/env bash
# Installs what packages.txt names and this machine lacks; does nothing, quickly, when all is there.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v apt-get >/dev/null || exit 0

missing=()
for package in $(grep -v '^#' packages.txt); do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
as_root=(); [ "$(id -u)" -eq 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
