#!/usr/bin/env bash
# configure.sh PRESET: configures build/... by a CMake preset.
#
# CMake caches where it found Qt and libcurl. When the set-up has built others since (a new version or
# recipe), the build folder is configured afresh, so that no old library is linked.
set -euo pipefail

preset=$1
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$here/../.."

fresh=()
if [[ $preset == windows-cross ]]; then
    stamp=build/windows/libraries.txt
    libraries=$("$here/qt.sh" --print-prefix && "$here/curl.sh" --print-prefix)
    if [[ ! -e $stamp || $(<"$stamp") != "$libraries" ]]; then
        fresh=(--fresh)
    fi
fi
cmake "${fresh[@]}" --preset "$preset"
if [[ $preset == windows-cross ]]; then
    printf '%s\n' "$libraries" >"$stamp"
fi
