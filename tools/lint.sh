#!/usr/bin/env bash
# lint.sh: checks the formatting of the C++ sources, the shell scripts and the spelling.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

status=0
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror || status=1
# Files that are only ever sourced are checked as parts of the scripts that source them.
git grep -lzE '^#!.*(bash|sh)$' -- tools .ci | xargs -0 shellcheck -x -a -P "$PWD" || status=1
# Spelling is checked in English only.
git ls-files -z -- ':!*.png' ':!*.ico' ':!*.ts' ':!tests/windows/languages' ':!tests/fuzz/corpora' |
    xargs -0 codespell --ignore-words tools/codespell_ignore.txt || status=1
exit "$status"
