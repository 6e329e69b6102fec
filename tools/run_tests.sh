#!/usr/bin/env bash
# run_tests.sh [PRESET...]: builds the presets and runs their tests; ends with a summary and, when
# anything failed, with exit code 1. Without arguments: every preset that runs on this machine.
#
#   TEST_JOBS   how many tests run at once (default: the number of cores)
set -uo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$here/.." || exit 1
presets=("$@")
if ((${#presets[@]} == 0)); then
    presets=(host host-asan host-tsan windows-cross)
fi
jobs=${TEST_JOBS:-$(nproc)}
summary=()
passed=0
failed=0

folderOf() {
    case $1 in
        windows-cross) echo build/windows ;;
        *) echo "build/$1" ;;
    esac
}

# caseCount LOG: the cases behind the test programs, from what GoogleTest, Qt Test and Python's
# unittest print at their ends.
caseCount() {
    awk '/^\[==========\] [0-9]+ tests? from .* ran/ { n += $2 }
         /^Totals: [0-9]+ passed/ { n += $2 + $4 }
         /^Ran [0-9]+ tests? in / { n += $2 }
         END { print n + 0 }' "$1"
}

attribute() {
    sed -n "s/.*<testsuite .*$2=\"\([0-9]*\)\".*/\1/p; s/^[[:space:]]*$2=\"\([0-9]*\)\".*/\1/p" "$1" |
        head -n 1
}

# Once in some thousand programs Wine does not get a program's end done, whatever the program was.
# The windows-cross preset therefore runs an entry again that hit its time limit; which ones did is
# told here, because a program of ours that hangs now and then would look the same.
timeOuts() {
    sed -n 's/.* Test *#[0-9]*: \([^ ]*\) .*\*\*\*Timeout.*/\1/p' "$1" | sort -u | paste -sd ' '
}

runPreset() {
    local preset=$1 folder begun=$SECONDS report all bad late
    folder=$(folderOf "$preset")
    echo "== $preset: build"
    if ! "$here/setup/configure.sh" "$preset" || ! cmake --build --preset "$preset"; then
        summary+=("$preset: DOES NOT BUILD")
        failed=$((failed + 1))
        return
    fi
    echo "== $preset: test"
    report="$PWD/$folder/test_report.xml"
    rm -f "$report"
    ctest --preset "$preset" --no-tests=error -LE stress -j "$jobs" --output-junit "$report" |
        tee "$folder/test_output.txt"
    local status=${PIPESTATUS[0]}
    all=$(attribute "$report" tests 2>/dev/null)
    bad=$(attribute "$report" failures 2>/dev/null)
    all=${all:-0}
    bad=${bad:-0}
    # A run that failed without a failed test (nothing found, a crash of ctest) still counts.
    if ((status != 0 && bad == 0)); then
        bad=1
        all=$((all > 0 ? all : 1))
    fi
    passed=$((passed + all - bad))
    failed=$((failed + bad))
    summary+=("$preset: $((all - bad)) of $all test programs passed, \
$(caseCount "$folder/Testing/Temporary/LastTest.log") cases, $((SECONDS - begun)) s with the build")
    late=$(timeOuts "$folder/test_output.txt")
    if [[ -n $late ]]; then
        summary+=("    hit the time limit at least once: $late")
    fi
}

for preset in "${presets[@]}"; do
    runPreset "$preset"
done
echo
echo "== summary after $SECONDS s"
printf '%s\n' "${summary[@]}"
echo "$passed passed, $failed failed"
((failed == 0))
