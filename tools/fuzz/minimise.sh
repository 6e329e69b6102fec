#!/usr/bin/env bash
# minimise.sh: copies from build/fuzz/corpora into tests/fuzz/corpora the few inputs that reach code
# beyond the checked-in ones. Inputs with descriptive names stay; those that an earlier call copied
# are chosen anew.
#
#   FUZZ_TARGETS   which targets (default: all)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=tools/fuzz/targets.sh
source tools/fuzz/targets.sh

buildFuzzTargets
mapfile -t targets < <(fuzzTargets)
work=$fuzzData/merge
rm -rf "$work"
# libFuzzer names inputs by their SHA-1.
namedBySum=(-type f -regextype posix-extended -regex '.*/[0-9a-f]{40}')
for target in "${targets[@]}"; do
    kept=tests/fuzz/corpora/$target
    grown=$fuzzData/corpora/$target
    mkdir -p "$grown" "$work/$target"
    cp "$kept"/* "$work/$target"
    find "$work/$target" "${namedBySum[@]}" -exec mv -t "$grown" {} +
    runTarget "$target" "$(fuzzProgram "$target")" -merge=1 -use_counters=0 "$work/$target" "$grown"
    find "$kept" "${namedBySum[@]}" -delete
    find "$work/$target" "${namedBySum[@]}" -exec cp -t "$kept" {} +
    echo "$target: $(find "$kept" -type f | wc -l) inputs," \
        "$(find "$kept" -type f -printf '%s\n' | awk '{ n += $1 } END { print n + 0 }') bytes"
done
