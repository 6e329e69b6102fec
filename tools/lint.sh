#!/usr/bin/env bash
# lint.sh: checks the formatting of the C++ sources, the shell scripts and the spelling.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

status=0
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror || status=1
git grep -lzE '^#!.*bash|^# shellcheck shell' -- tools .ci | xargs -0 shellcheck -x -P "$PWD" || status=1
git ls-files -z -- ':!*.png' ':!*.ico' ':!*.ts' | xargs -0 codespell --ignore-words tools/codespell_ignore.txt ||
    status=1
exit "$status"
