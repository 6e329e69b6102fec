#!/usr/bin/env bash
# run_tests.sh [PRESET...]: builds the presets, then runs their tests; ends with a summary, which
# stays in build/test_summary.txt, and with exit code 1 when anything failed. Without arguments:
# every preset that runs on this machine.
#
#   TEST_JOBS   how many Windows tests run at once (default: three for each core; many wait)
set -uo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$here/.." || exit 1
presets=("$@")
if ((${#presets[@]} == 0)); then
    presets=(host host-asan host-tsan windows-cross)
fi
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

buildPreset() {
    local preset=$1
    echo "== $preset: build"
    if ! "$here/setup/configure.sh" "$preset" || ! cmake --build --preset "$preset"; then
        summary+=("$preset: DOES NOT BUILD")
        failed=$((failed + 1))
        return 1
    fi
}

# testPreset PRESET JOBS: leaves what it says in test_output.txt, and its exit code in test_status.
testPreset() {
    local folder
    folder=$(folderOf "$1")
    ctest --preset "$1" --no-tests=error -LE stress -j "$2" \
        --output-junit "$PWD/$folder/test_report.xml" >"$folder/test_output.txt" 2>&1
    echo $? >"$folder/test_status"
}

# One preset after the other, beside those of Windows.
testHostPresets() {
    local preset
    for preset in "${hostPresets[@]}"; do
        testPreset "$preset" "$(nproc)"
    done
}

countPreset() {
    local preset=$1 folder all bad status
    folder=$(folderOf "$preset")
    status=$(<"$folder/test_status")
    all=$(attribute "$folder/test_report.xml" tests 2>/dev/null)
    bad=$(attribute "$folder/test_report.xml" failures 2>/dev/null)
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
$(caseCount "$folder/Testing/Temporary/LastTest.log") cases")
}

# startGroup COMMAND...: in the background, as a process group of its own, which Ctrl+C does not
# reach; hence endTests.
groups=()
startGroup() {
    set -m
    "$@" &
    set +m
    groups+=("$!")
}

endTests() {
    local group
    for group in "${groups[@]}"; do
        kill -TERM -- "-$group" 2>/dev/null
    done
    exit "$1"
}
trap 'endTests 130' INT
trap 'endTests 143' TERM HUP

built=()
for preset in "${presets[@]}"; do
    if buildPreset "$preset"; then
        built+=("$preset")
    fi
done
begun=$SECONDS
for preset in "${built[@]}"; do
    rm -f "$(folderOf "$preset")"/test_{report.xml,output.txt,status}
done

hostPresets=()
for preset in "${built[@]}"; do
    if [[ $preset != windows-cross ]]; then
        hostPresets+=("$preset")
    fi
done
startGroup testHostPresets
hostTests=$!
if [[ " ${built[*]} " == *" windows-cross "* ]]; then
    echo "== windows-cross: test"
    startGroup testPreset windows-cross "${TEST_JOBS:-$((3 * $(nproc)))}"
    windowsTests=$!
    tail -n +1 --pid="$windowsTests" -F build/windows/test_output.txt 2>/dev/null
    wait "$windowsTests"
    countPreset windows-cross
fi
wait "$hostTests"
for preset in "${hostPresets[@]}"; do
    echo "== $preset: test"
    cat "$(folderOf "$preset")/test_output.txt"
    countPreset "$preset"
done
echo
echo "== summary: tests took $((SECONDS - begun)) s, $SECONDS s with the build"
mkdir -p build
{
    printf '%s\n' "${summary[@]}"
    echo "$passed passed, $failed failed"
} | tee build/test_summary.txt
((failed == 0))
