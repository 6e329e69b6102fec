#!/usr/bin/env bash
# Takes a picture of every window in every language and puts them together, one sheet per window:
# build/screenshots/<window>.png, with the single pictures in build/screenshots/<scale>/.
#
#   tools/screenshots/contact_sheets.sh [SCALE]    SCALE: 1 (default), 1.5, 2, ...
#
# Needs a configured windows-cross build; the Makefile sees to that.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
scale=${1:-1}
sheets="$root/build/screenshots"
pictures="$sheets/$scale"
windows=(main main_all survey offer_video offer_music warning)
# English first, then the catalogues' own order.
languages=(en cn de dk es "fi" fr gr hu it ja ko nl pl pt ru si sk sv th tr tw vn)

cmake --build --preset windows-cross --target gallery

rm -rf "$pictures"
mkdir -p "$pictures"
# A prefix of its own: the windows read the registry and the settings of the user.
export WINEPREFIX="$root/build/prefixes/screenshots"
# shellcheck source=tools/wine/environment.sh
source "$root/tools/wine/environment.sh"
QT_SCALE_FACTOR=$scale "$root/tools/wine-run" \
    "$root/build/windows/windows_tests/gallery.exe" "$(windowsPath "$pictures")"

suffix=""
if [[ $scale != 1 ]]; then
    suffix="@$scale"
fi
for window in "${windows[@]}"; do
    parts=()
    for language in "${languages[@]}"; do
        parts+=(-label "$language" "$pictures/$window-$language.png")
    done
    montage -background '#d8d8d8' -geometry +8+4 -tile 4x "${parts[@]}" "$sheets/$window$suffix.png"
    echo "$sheets/$window$suffix.png"
done
