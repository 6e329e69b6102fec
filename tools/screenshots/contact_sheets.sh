#!/usr/bin/env bash
# Pictures every window in every language, one contact sheet per window:
# build/screenshots/<window>@<dpi>.png; the single pictures are in build/screenshots/<dpi>/.
#
#   tools/screenshots/contact_sheets.sh [DPI]    96 (default) for 100 %, 120 for 125 %, 144, 168, 192
#
# Needs a configured windows-cross build, as "make screenshots" provides it.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
dpi=${1:-96}
sheets="$root/build/screenshots"
pictures="$sheets/$dpi"
windows=(main main_all survey offer_video offer_music warning)
mapfile -t languages < <(
    echo en
    sed -n 's/^\([a-z]\+\) .*/\1/p' "$root/ui/uninstall/resources/languages/languages.txt"
)

cd "$root"
cmake --build --preset windows-cross --target gallery wine_launcher

rm -rf "$pictures"
mkdir -p "$pictures"
# A prefix of its own: the windows read the registry and the settings of the user.
export WINEPREFIX="$root/build/prefixes/screenshots"
# shellcheck source=tools/wine/environment.sh
source "$root/tools/wine/environment.sh"
WINE_RUN_DPI=$dpi "$root/tools/wine-run" \
    "$root/build/windows/windows_tests/gallery.exe" "$(windowsPath "$pictures")"

for window in "${windows[@]}"; do
    parts=()
    for language in "${languages[@]}"; do
        parts+=(-label "$language" "$pictures/$window-$language.png")
    done
    montage -background '#d8d8d8' -geometry +8+4 -tile 4x "${parts[@]}" "$sheets/$window@$dpi.png"
    echo "$sheets/$window@$dpi.png"
done
