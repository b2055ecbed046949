#!/usr/bin/env bash
# demarrer.sh: builds zof and computes an example to its notes
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/paquets.sh g++ cmake ninja-build
cmake --preset produit
cmake --build --preset produit
exemple=poutre_rectangulaire
sortie=$(mktemp -d)
cp "examples/$exemple/$exemple.zof" "$sortie/"
build/produit/zof "$sortie/$exemple.zof" >"$sortie/console.txt"
echo
echo "Notes: $sortie/$exemple.txt"
echo "       $sortie/$exemple.html"
