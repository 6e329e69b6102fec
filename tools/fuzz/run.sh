#!/usr/bin/env bash
# run.sh: builds and runs the fuzz targets; exits with 1 when one of them fails. Inputs that reach new
# code stay in build/fuzz/corpora for the next run.
#
#   FUZZ_SECONDS   how long each target runs (default 60)
#   FUZZ_TARGETS   which targets, as in tests/fuzz/corpora (default: all)
#   FUZZ_OPTIONS   more options for libFuzzer, such as "-fork=2"
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=tools/fuzz/targets.sh
source tools/fuzz/targets.sh

seconds=${FUZZ_SECONDS:-60}
read -ra moreOptions <<<"${FUZZ_OPTIONS:-}"
buildFuzzTargets
mapfile -t targets < <(fuzzTargets)

summary=()
failed=0
for target in "${targets[@]}"; do
    corpus=$fuzzData/corpora/$target
    findings=$fuzzData/findings/$target
    log=$fuzzData/$target.log
    mkdir -p "$corpus" "$findings"
    begun=$(mktemp)
    echo "== $target for $seconds s"
    status=0
    "$(fuzzProgram "$target")" -max_total_time="$seconds" -max_len=256 -timeout=10 \
        -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$findings/" \
        "${moreOptions[@]}" "$corpus" "tests/fuzz/corpora/$target" >"$log" 2>&1 || status=$?
    mapfile -t found < <(find "$findings" -type f -newer "$begun")
    rm -f "$begun"
    if ((status == 0)); then
        summary+=("$target: $(grep '^Done' "$log" || echo "ended")")
        continue
    fi
    failed=1
    summary+=("$target: FAILED, see $log")
    echo "$target failed (exit code $status). The end of $log:"
    tail -n 40 "$log"
    for input in "${found[@]}"; do
        printf '%s\n' "" "The input is kept in $input." \
            "  reproduce:   $(fuzzProgram "$target") $input" \
            "  shorten:     $(fuzzProgram "$target") -minimize_crash=1 -runs=100000 $input" \
            "  keep:        cp $input tests/fuzz/corpora/$target/WHAT_IT_SHOWS" \
            "\"make test\" runs every input that is kept."
    done
done
echo
printf '%s\n' "== summary" "${summary[@]}"
exit "$failed"
