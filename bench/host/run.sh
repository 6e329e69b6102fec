#!/usr/bin/env bash
# Builds and runs the measurements of the logic on this machine, and prints Markdown tables.
#
#   bench/host/run.sh [REPETITIONS]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

tools/setup/packages.sh bench
cmake --preset host -B build/host-bench -DTESSERA_BENCH=ON >/dev/null
cmake --build build/host-bench --target host_bench
bench/host/report.py build/host-bench/bench/host/host_bench "$@"
