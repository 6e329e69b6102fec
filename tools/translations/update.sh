#!/usr/bin/env bash
# Updates the translation catalogues from the program's texts: new texts appear as unfinished, removed
# ones are marked. Run it after every change of a text, and after adding a language to languages.txt:
# it creates the missing catalogue.
#
#   update.sh             updates the program's catalogues
#   update.sh FILE.ts...  updates these instead
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
languages="$root/ui/uninstall/resources/languages"

# Without locations a catalogue changes only with its texts.
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
