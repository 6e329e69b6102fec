#!/usr/bin/env bash
# Renders the SVG sources to the PNG and ICO files of the resources, which are committed. Needed only
# after a change of a drawing (packages librsvg2-bin and imagemagick).
set -euo pipefail

pictures=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/ui/uninstall/resources/pictures
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

for tool in rsvg-convert convert; do
    command -v "$tool" >/dev/null || { echo "render.sh: $tool is missing" >&2; exit 1; }
done

# png NAME OUTPUT WIDTH HEIGHT
png() {
    rsvg-convert --width "$3" --height "$4" --output "$pictures/$2" "$pictures/src/$1.svg"
}

# ico NAME OUTPUT: the sizes for 100 to 250 percent, and the large one.
ico() {
    local size frame frames=()
    for size in 16 20 24 32 40 48 64 256; do
        frame=$scratch/$1-$size.png
        rsvg-convert --width "$size" --height "$size" --output "$frame" "$pictures/src/$1.svg"
        frames+=("$frame")
    done
    convert "${frames[@]}" "$pictures/$2"
}

png uninstall uninstall_ico_48x48.png 48 48
png uninstall uninstall_ico_48x48@2x.png 96 96
png blue_check blue_check.png 23 22
png blue_check blue_check@2x.png 46 44
png golden_star golden_star.png 23 22
png golden_star golden_star@2x.png 46 44
ico uninstall uninstall.ico
ico suite common.ico
