#!/usr/bin/env bash
# formater.sh [--verifier]: formats all sources, or fails if one is not formatted
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t sources < <(git ls-files -co --exclude-standard 'src/*.[ch]pp' 'tests/*.[ch]pp' 'bench/*.[ch]pp' 'fuzz/*.[ch]pp')
if [ "${1:-}" = --verifier ]; then
  clang-format --dry-run --Werror "${sources[@]}"
else
  clang-format -i "${sources[@]}"
fi
