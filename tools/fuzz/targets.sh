# shellcheck shell=bash
# Shared by the fuzz scripts: builds and runs the fuzz targets, and knows their folders. Sourced, never
# run, from the tree's root.

fuzzBuild=build/host-fuzz
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

# runTarget TARGET PROGRAM ARGS...: runs a target's program with its output in $fuzzData/TARGET.log.
# When the program fails, tells why and how to go on, and returns its exit code.
runTarget() {
    local target=$1 program=$2 findings=$fuzzData/findings/$1 log=$fuzzData/$1.log
    local begun input status=0
    local -a found
    shift 2
    mkdir -p "$findings"
    begun=$(date +@%s.%N)
    "$program" -artifact_prefix="$findings/" "$@" >"$log" 2>&1 || status=$?
    if ((status == 0)); then
        return
    fi
    echo "$target failed (exit code $status). The end of $log:"
    tail -n 40 "$log"
    mapfile -t found < <(find "$findings" -type f -newermt "$begun")
    for input in "${found[@]}"; do
        printf '%s\n' "" "The input is kept in $input." \
            "  reproduce:   $program $input" \
            "  shorten:     $program -minimize_crash=1 -runs=100000 $input" \
            "  keep:        cp $input tests/fuzz/corpora/$target/WHAT_IT_SHOWS" \
            "\"make test\" runs every input that is kept."
    done
    if ((${#found[@]} == 0)); then
        printf '%s\n' "" "No input was kept. To repeat it:" "  $program $*"
    fi
    return "$status"
}
