#!/usr/bin/env bash
# Installs the Debian packages that building, testing and running need; does nothing, and asks for
# no rights, when they are all there.
#
#   tools/setup/packages.sh [SET...]   for build, test and run, and for each SET:
#       lint    "make format"; with bench, "make lint"
#       bench   "make bench"
#       fuzz    "make fuzz"
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
setupName=packages
# shellcheck source=tools/setup/common.sh
source "$here/common.sh"

packages=(
    # the host's tools, compiler and libraries
    cmake ninja-build ccache g++ python3 perl openssl xz-utils dpkg-dev
    libspdlog-dev libfmt-dev libcurl4-openssl-dev googletest libbenchmark-dev
    # the cross compiler, its linker, and the host's side of Qt 5
    g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 lld-19 qtbase5-dev-tools qt5-qmake-bin
    qttools5-dev-tools
    # running Windows programs, and looking at them
    wine wine64 xvfb openbox imagemagick python3-xlib
    # Tahoma; a substitute for Segoe UI; Chinese, Japanese and Korean letters in one face; Thai letters
    fonts-wine fonts-open-sans fonts-wqy-microhei fonts-tlwg-garuda-ttf
    # the sample suite's installers
    nsis
)
for set in "$@"; do
    case $set in
        lint) packages+=(clang clang-format clang-tidy cppcheck shellcheck codespell pyflakes3) ;;
        fuzz) packages+=(clang llvm libclang-rt-dev) ;;
        bench) # other libraries that the measurements compare with
            packages+=(qtbase5-dev libctemplate-dev libkainjow-mustache-dev libsimpleini-dev libinih-dev)
            ;;
        *) die "there is no set \"$set\" of packages: lint, bench and fuzz" ;;
    esac
done

missing=()
while read -r package; do
    missing+=("$package")
done < <(comm -23 <(printf '%s\n' "${packages[@]}" | sort -u) \
    <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' | sed -n 's/^installed //p' | sort -u))
((${#missing[@]} == 0)) && exit 0

asRoot=()
if ((EUID != 0)); then
    command -v sudo >/dev/null ||
        die "these packages are missing and there is no sudo to install them: ${missing[*]}"
    asRoot=(sudo)
fi
say "installing ${#missing[@]} packages: ${missing[*]}"
takeLock "$(cacheRoot)/packages.lock"
setupLog=$(cacheRoot)/packages.log
: >"$setupLog"

# sudo resets the environment, hence env. A fresh machine may hold the lock for its own updates.
aptGet() {
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -o DPkg::Lock::Timeout=300 "$@"
}

# In the foreground and on the terminal, where sudo can ask for its password.
if ((EUID != 0)); then
    sudo -v
fi
runStage "updating the package lists" 0 aptGet update
runStage "installing" 0 aptGet install -y --no-install-recommends "${missing[@]}"
say "done"
