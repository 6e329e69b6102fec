#!/usr/bin/env bash
# soak.sh: runs every test SOAK_RUNS times (10) and tells how often each entry failed. A run's
# output is kept in build/soak/.
set -uo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$here/.." || exit 1
runs=${SOAK_RUNS:-10}
logs=build/soak
rm -rf "$logs"
mkdir -p "$logs"

# failuresIn LOG: "PRESET: NAME" of the entries that ctest counts as failed, from the preset's heading
# and from "12/49 Test #3: NAME ....***Failed".
failuresIn() {
    awk '/^== .*: test$/ { preset = $2 }
         /^ *[0-9]+\/[0-9]+ Test *#[0-9]+: .*\*\*\*/ { sub(/^[^:]*: /, ""); print preset, $1 }' "$1"
}

clean=0
for ((run = 1; run <= runs; run++)); do
    log=$logs/run-$run.txt
    begun=$SECONDS
    if "$here/run_tests.sh" >"$log" 2>&1; then
        clean=$((clean + 1))
    fi
    echo "run $run of $runs, $((SECONDS - begun)) s: $(tail -n 1 "$log")"
    failuresIn "$log" >>"$logs/failures.txt"
done

echo
if [[ -s $logs/failures.txt ]]; then
    echo "failed, how often:"
    sort "$logs/failures.txt" | uniq -c | sort -rn
elif ((clean == runs)); then
    echo "no entry failed"
else
    echo "a run failed as a whole: see the logs in $logs"
fi
echo "$clean of $runs runs without a failure"
((clean == runs))
