#!/usr/bin/env bash
# fuzz.sh [SECONDS]: bytes to a whole run in memory, under the sanitizers
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/paquets.sh clang cmake ninja-build libclang-rt-14-dev
cmake --preset fuzz
cmake --build --preset fuzz --target fuzz_programme
mkdir -p build/fuzz/corpus
build/fuzz/fuzz/fuzz_programme -max_total_time="${1:-60}" -timeout=10 -rss_limit_mb=2048 -max_len=8192 \
  -dict=fuzz/dictionnaire.txt -artifact_prefix=build/fuzz/ build/fuzz/corpus fuzz/corpus
