#!/usr/bin/env bash
# Cross-builds static Qt (qtbase) for 64-bit Windows from Debian's source package, once.
#
#   tools/setup/qt.sh                  builds it if it is missing
#   tools/setup/qt.sh --print-prefix   prints where it is (or will be) and does nothing else
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
setupName=qt
# shellcheck source=tools/setup/common.sh
source "$here/common.sh"
# The recipe's variables are set by buildLibrary.
# shellcheck source=tools/setup/recipes/qt.sh disable=SC2154
source "$here/recipes/qt.sh"

# The host's moc, rcc and uic come from this package, so its version is Qt's version here.
qtVersion=$(packageVersion qtbase5-dev-tools)
buildLibrary qt Qt qtbase-opensource-src "$qtVersion" "$qtCompilerCalls" "$@"
