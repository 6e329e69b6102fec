# shellcheck shell=bash
# Shared by the fuzz scripts: builds the fuzz targets and knows their folders. Sourced, never run,
# from the tree's root.

fuzzBuild=build/host-fuzz
# shellcheck disable=SC2034 # for the scripts that source this one
fuzzData=build/fuzz

# The targets named in FUZZ_TARGETS, or all: one per folder of checked-in inputs.
fuzzTargets() {
    if [[ -n ${FUZZ_TARGETS:-} ]]; then
        tr ' ' '\n' <<<"$FUZZ_TARGETS"
        return
    fi
    find tests/fuzz/corpora -mindepth 1 -maxdepth 1 -type d -printf '%f\n' | sort
}

fuzzProgram() {
    printf '%s\n' "$fuzzBuild/tests/fuzz/$1_fuzz"
}

buildFuzzTargets() {
    tools/setup/packages.sh fuzz
    tools/setup/configure.sh host-fuzz
    cmake --build --preset host-fuzz
}
