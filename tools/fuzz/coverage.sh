#!/usr/bin/env bash
# coverage.sh: prints, by file, how much of the code under test the checked-in inputs reach.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=tools/fuzz/targets.sh
source tools/fuzz/targets.sh

tools/setup/packages.sh fuzz
build=build/host-fuzz-coverage
cmake --preset host-fuzz -B "$build" \
    -DTESSERA_SANITIZE=fuzzer-no-link \
    -DCMAKE_CXX_FLAGS="-fprofile-instr-generate -fcoverage-mapping"
cmake --build "$build" --target fuzz_targets

objects=()
while read -r target; do
    program=$build/tests/fuzz/${target}_fuzz
    LLVM_PROFILE_FILE="$build/$target.profraw" \
        runTarget "$target" "$program" -runs=0 "tests/fuzz/corpora/$target"
    # llvm-cov takes the first program as an argument and the others by -object.
    objects+=(${objects[0]:+-object} "$program")
done < <(fuzzTargets)
llvm-profdata merge -o "$build/all.profdata" "$build"/*.profraw
llvm-cov report "${objects[@]}" -instr-profile "$build/all.profdata" \
    support/keelbase/log_line.cpp \
    ui/common/config/{brand,config,config_text}.cpp \
    ui/common/stat/{event_body,template_params,url_encode}.cpp \
    ui/common/sys/{ipc_commands,pipe_frame}.cpp \
    ui/uninstall/src/{app_catalogue,command_line,uninstall_command}.cpp
