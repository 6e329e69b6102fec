#!/usr/bin/env bash
# relink.sh QT_FOLDER: links Uninstall.exe from the object files here and the static Qt in
# QT_FOLDER. See README.txt. CXX names the compiler to link with.
set -euo pipefail

if (($# != 1)) || [[ ! -e $1/lib/libQt5Core.a ]]; then
    echo "usage: relink.sh QT_FOLDER (the folder that holds lib/libQt5Core.a)" >&2
    exit 2
fi
qt=$(cd "$1" && pwd)
cd "$(dirname "${BASH_SOURCE[0]}")"

compiler=${CXX:-x86_64-w64-mingw32-g++-posix}

# One argument per line. @QT@ is the folder of Qt, @COMPILER@ the one of the compiler's libraries.
arguments=()
while IFS= read -r argument; do
    case $argument in
        @QT@/*) argument="$qt/${argument#@QT@/}" ;;
        @COMPILER@/*) argument=$(realpath "$("$compiler" "-print-file-name=${argument#*/}")") ;;
    esac
    arguments+=("$argument")
done <arguments.txt
"$compiler" "${arguments[@]}" -o Uninstall.exe
rm -rf .linked
echo "$PWD/Uninstall.exe"
