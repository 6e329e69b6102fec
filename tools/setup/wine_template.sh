#!/usr/bin/env bash
# Makes the Wine prefix that every other prefix is copied from, once: booting a new prefix takes
# ten seconds and 700 MB, a copy of this one takes a fraction of a second and a few MB.
#
#   tools/setup/wine_template.sh                  makes it if it is missing
#   tools/setup/wine_template.sh --print-prefix   prints where it is (or will be)
#
# The folders of Windows' own files are links in it, and so in every copy: nothing that runs here
# writes to them, and a copy is 100 files instead of 930.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
setupName=wine
# shellcheck source=tools/setup/common.sh
source "$here/common.sh"
# shellcheck source=tools/wine/environment.sh
source "$here/../wine/environment.sh"

settings="$here/../wine/prefix.reg"
cache=$(cacheRoot)
wineVersion=$(packageVersion wine64)
template="$cache/wine-$(upstreamVersion "${wineVersion%%\~*}")-$(hashOf "${BASH_SOURCE[0]}" "$settings" \
    <(echo "$wineVersion"))"

if [[ ${1:-} == --print-prefix ]]; then
    printf '%s\n' "$template/prefix"
    exit 0
fi
[[ -e $template ]] && exit 0

takeLock "$cache/wine.lock"
[[ -e $template ]] && exit 0

work="$cache/work-wine"
export WINEPREFIX="$work/prefix"
setupLog="$template.log"
rm -rf "$work"
mkdir -p "$work"
: >"$setupLog"

bootPrefix() {
    unset DISPLAY
    "$wineLoader" wineboot --init
    "$wineServer" -w
    "$wineLoader" regedit /S "$(windowsPath "$settings")"
    "$wineServer" -w
}

# Wine copies its own 700 MB of libraries into every prefix. Files that are byte for byte those of
# the package become links to it.
linkPackageFiles() {
    local file original
    while IFS= read -r -d '' file; do
        for original in "$wineLibraries/${file##*/}" "$wineData/nls/${file##*/}"; do
            if cmp -s "$file" "$original"; then
                ln -sf "$original" "$file"
                break
            fi
        done
    done < <(find "$WINEPREFIX/drive_c" -type f -size +4k -print0)
}

# Wine does not look into the folder that Debian's package of its fonts fills.
linkFonts() {
    ln -s "$wineData"/fonts/tahoma{,bd}.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
}

# Wine points Desktop, Documents and so on at the user's real folders. No test and no uninstaller
# that runs here may touch those.
separateUserFolders() {
    local link
    while IFS= read -r -d '' link; do
        rm "$link"
        mkdir "$link"
    done < <(find "$WINEPREFIX/drive_c/users" -type l -print0)
}

shareWindowsFolders() {
    local folder windows="$WINEPREFIX/drive_c/windows"
    mkdir "$work/windows"
    for folder in system32 winsxs inf resources Fonts; do
        mv "$windows/$folder" "$work/windows/"
        ln -s "$template/windows/$folder" "$windows/$folder"
    done
}

say "making the Wine prefix that others are copied from (log: $setupLog)"
runStage "booting" 0 bootPrefix
runStage "linking the package's files" 0 linkPackageFiles
runStage "linking the fonts" 0 linkFonts
runStage "separating the user's folders" 0 separateUserFolders
runStage "sharing the folders of Windows" 0 shareWindowsFolders
mv "$work" "$template"
say "the template is ready in $template ($(du -sh "$template" | cut -f1))"
