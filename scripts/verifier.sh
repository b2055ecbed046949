#!/usr/bin/env bash
# verifier.sh: builds, and passes every test and check; the first fault ends it
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/paquets.sh g++ cmake ninja-build libgtest-dev libgmock-dev clang clang-format clang-tidy binutils git \
  libxml2-utils w3c-sgml-lib chromium
titre() { printf '\n== %s\n' "$*"; }

titre 'Format'
scripts/formater.sh --verifier
titre 'Tests, headers alone'
cmake --workflow --preset dev
titre 'Module state'
scripts/etat_modules.sh build/dev
titre 'Tests under the sanitizers'
cmake --workflow --preset assainisseurs
titre 'Tests of the program that is handed out'
cmake --workflow --preset produit
titre 'Notes in the browser'
scripts/navigateur.sh build/produit/zof
titre 'Linter'
scripts/linter.sh
