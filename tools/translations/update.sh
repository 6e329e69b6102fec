#!/usr/bin/env bash
# Brings the translation sources in line with the texts of the program: new texts appear as
# unfinished, texts that are gone are marked so. To be run after every change of a text.
#
#   update.sh             updates the program's catalogues
#   update.sh FILE.ts...  updates these instead
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
languages="$root/ui/uninstall/resources/languages"

catalogues=("$@")
if ((${#catalogues[@]} == 0)); then
    catalogues=("$languages"/uninstall_*.ts)
fi

# Without locations, a catalogue changes only when a text does.
lupdate -silent -locations none -I "$root" \
    "$root"/ui/uninstall/src/*.cpp "$root"/ui/uninstall/src/*.h "$root"/ui/uninstall/src/*.ui \
    "$languages/toolkit_texts.h" -ts "${catalogues[@]}"
