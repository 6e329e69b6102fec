#!/usr/bin/env bash
# Builds and runs the measurements of the message channel and of a second start (under Wine).
# Arguments go to ipc_bench.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

tools/setup/configure.sh windows-cross
cmake -DTESSERA_BENCH=ON build/windows
cmake --build build/windows --target ipc_bench Uninstall wine_launcher wine_pipe_shim
WINEPREFIX=$PWD/build/windows/prefixes/ipc_bench \
    tools/wine-run build/windows/bench/ipc/ipc_bench.exe "$@"
