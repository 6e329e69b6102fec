#!/usr/bin/env bash
# lint.sh: checks the formatting of the C++ sources, the shell scripts and the spelling, and looks
# for mistakes with clang-tidy (what compiles on this machine) and cppcheck (everything).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

status=0
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror || status=1
# Files that are only ever sourced are checked as parts of the scripts that source them.
git grep -lzE '^#!.*(bash|sh)$' -- tools .ci | xargs -0 shellcheck -x -a -P "$PWD" || status=1
# Spelling is checked in English only.
git ls-files -z -- ':!*.png' ':!*.ico' ':!*.ts' ':!tests/windows/languages' ':!tests/fuzz/corpora' |
    xargs -0 codespell --ignore-words tools/codespell_ignore.txt || status=1

git ls-files -z '*.cpp' '*.c' | xargs -0 cppcheck --quiet --error-exitcode=1 -j "$(nproc)" \
    --enable=warning,performance,portability,style --inline-suppr --std=c++17 -I . \
    --library=qt --library=windows --library=googletest --suppress=missingIncludeSystem \
    --suppressions-list=tools/cppcheck_suppressions.txt || status=1

# Each source as the host build compiles it. The compiler options are g++'s, and clang-tidy counts
# what it found in foreign headers.
tools/setup/configure.sh host >/dev/null
python3 -c '
import json
for entry in json.load(open("build/host/compile_commands.json")):
    print(entry["file"])' | grep "^$PWD/" | sort -u | tr '\n' '\0' |
    xargs -0 -P "$(nproc)" -n 4 clang-tidy --quiet -p build/host \
        --extra-arg=-Wno-unknown-warning-option \
        2> >(grep -vE '^[0-9]+ warnings? generated\.$' >&2) || status=1
exit "$status"
