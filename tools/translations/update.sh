#!/usr/bin/env bash
# Brings the translation sources in line with the texts of the program: new texts appear as
# unfinished, texts that are gone are marked so. To be run after every change of a text, and after a
# language was added to languages.txt: it makes the missing catalogue.
#
#   update.sh             updates the program's catalogues
#   update.sh FILE.ts...  updates these instead
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
languages="$root/ui/uninstall/resources/languages"

# Without locations, a catalogue changes only when a text does.
update() {
    lupdate -silent -locations none -I "$root" \
        "$root"/ui/uninstall/src/*.cpp "$root"/ui/uninstall/src/*.h "$root"/ui/uninstall/src/*.ui \
        "$languages/toolkit_texts.h" "$@"
}

catalogues=("$@")
if ((${#catalogues[@]} == 0)); then
    while read -r code locale; do
        catalogue="$languages/uninstall_$code.ts"
        catalogues+=("$catalogue")
        [[ -e $catalogue ]] || update -source-language en_US -target-language "$locale" -ts "$catalogue"
    done < <(grep '^[a-z]' "$languages/languages.txt")
fi
update -ts "${catalogues[@]}"
