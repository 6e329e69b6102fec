#!/usr/bin/env bash
# lint.sh: checks the C++ sources' format, the scripts and the spelling, and reads the C++ code with
# cppcheck, clang-tidy (what compiles on this machine) and clang (what compiles for Windows, with
# the same warnings as errors). What passed is remembered in the set-up's cache.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
setupName=lint
# shellcheck source=tools/setup/common.sh
source tools/setup/common.sh
cache=$(cacheRoot)/lint

failed=()
check() {
    local name=$1 begun=$SECONDS
    shift
    if "$@"; then
        say "$name: passed, $((SECONDS - begun)) s"
    else
        say "$name: FAILED"
        failed+=("$name")
    fi
}

checkFormat() {
    git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror
}

# Files that are only ever sourced are checked as parts of the scripts that source them.
checkShell() {
    git grep -lzE '^#!.*(bash|sh)$' | xargs -0 shellcheck -x -a -P "$PWD"
}

checkPython() {
    { git ls-files -z '*.py'; git grep -lz '^#!.*python3$' -- ':!*.py'; } | xargs -0 pyflakes3
}

# Spelling is checked in English only.
checkSpelling() {
    git ls-files -z -- ':!*.png' ':!*.ico' ':!*.ts' ':!tests/windows/languages' \
        ':!tests/fuzz/corpora' |
        xargs -0 codespell --ignore-words tools/lint/codespell_ignore.txt
}

# One run at a time: its cache has files that runs would write at the same time.
checkWithCppcheck() {
    local build="$cache/cppcheck"
    mkdir -p "$build"
    git ls-files -z '*.cpp' '*.c' |
        xargs -0 flock "$cache/cppcheck.lock" cppcheck --quiet --error-exitcode=1 -j "$(nproc)" \
            --cppcheck-build-dir="$build" \
            --enable=warning,performance,portability,style --inline-suppr --std=c++17 -I . \
            --library=qt --library=windows --library=googletest --suppress=missingIncludeSystem \
            --suppressions-list=tools/lint/cppcheck_suppressions.txt
}

# With the measurements. The headers that Qt's tools generate are built; nothing else.
prepareFolders() {
    local -a generated
    cmake --preset host -B build/host-bench -DTESSERA_BENCH=ON >/dev/null &&
        tools/setup/configure.sh windows-cross >/dev/null &&
        cmake -DTESSERA_BENCH=ON build/windows >/dev/null &&
        mapfile -t generated < <(ninja -C build/windows -t targets all |
            sed -n 's,^\([^/]*_autogen\): phony$,\1,p') &&
        cmake --build build/windows --target "${generated[@]}" >/dev/null
}

check "format" checkFormat
check "shell scripts" checkShell
check "Python" checkPython
check "spelling" checkSpelling
check "cppcheck" checkWithCppcheck
check "build folders" prepareFolders
check "clang-tidy" python3 -B tools/lint/read_again.py clang-tidy build/host-bench "$cache"
check "clang for Windows" python3 -B tools/lint/read_again.py clang build/windows "$cache"
if ((${#failed[@]} > 0)); then
    say "failed: ${failed[*]}"
    exit 1
fi
