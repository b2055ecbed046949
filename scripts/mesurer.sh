#!/usr/bin/env bash
# mesurer.sh [FILTER]: the benchmark suite, optimised build; medians of five repetitions
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/paquets.sh g++ cmake ninja-build libbenchmark-dev
cmake --preset mesures
cmake --build --preset mesures
printf '%s, %s cores\n' "$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1)" "$(nproc)"
for b in build/mesures/bench/bench_*; do
  [ -x "$b" ] && [ -f "$b" ] || continue
  "$b" --benchmark_filter="${1:-.*}" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true 2>/dev/null |
    grep -E '_median|^Benchmark' || true
done
