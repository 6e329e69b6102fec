#!/usr/bin/env bash
# Builds the program and one of its measurements, and runs the measurement under Wine.
#
#   bench/windows.sh SUBJECT [ARGS...]   SUBJECT: ipc, run or startup; ARGS: those of SUBJECT_bench
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

subject=$1
shift
tools/setup/configure.sh windows-cross >/dev/null
cmake -DTESSERA_BENCH=ON build/windows >/dev/null
cmake --build build/windows --target "${subject}_bench" Uninstall wine_launcher -- --quiet
WINEPREFIX=$PWD/build/windows/prefixes/${subject}_bench \
    tools/wine-run "build/windows/bench/$subject/${subject}_bench.exe" "$@"
