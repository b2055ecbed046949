#!/usr/bin/env bash
# paquets.sh: installs the named Debian packages that are not there yet
set -euo pipefail
manquants=()
for p in "$@"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || manquants+=("$p")
done
((${#manquants[@]})) || exit 0
sudo=
[ "$(id -u)" -eq 0 ] || sudo=sudo
$sudo apt-get update -qq
$sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${manquants[@]}" >/dev/null
