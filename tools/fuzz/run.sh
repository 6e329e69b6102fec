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
    log=$fuzzData/$target.log
    mkdir -p "$corpus"
    echo "== $target for $seconds s"
    if runTarget "$target" "$(fuzzProgram "$target")" -max_total_time="$seconds" -max_len=256 \
        -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 "${moreOptions[@]}" \
        "$corpus" "tests/fuzz/corpora/$target"; then
        summary+=("$target: $(grep '^Done' "$log" || echo "ended")")
    else
        failed=1
        summary+=("$target: FAILED, see $log")
    fi
done
echo
printf '%s\n' "== summary" "${summary[@]}"
exit "$failed"
