#!/usr/bin/env bash
# linter.sh [FILE...]: clang-tidy on the product's sources (or on these), with the compile commands of build/dev
set -euo pipefail
cd "$(dirname "$0")/.."
[ -f build/dev/compile_commands.json ] || cmake --preset dev
if (($#)); then
  sources=("$@")
else
  mapfile -t sources < <(git ls-files 'src/*.cpp')
fi
# The compile commands carry flags of g++ that clang does not know.
printf '%s\0' "${sources[@]}" | xargs -0 -P "$(nproc)" -n 4 clang-tidy --quiet -p build/dev \
  --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-unused-command-line-argument 2>/dev/null
