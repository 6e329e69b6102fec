#!/usr/bin/env bash
# Cross-builds static Qt (qtbase) for 64-bit Windows from Debian's source package, once.
#
#   tools/setup/qt.sh                  builds it if it is missing
#   tools/setup/qt.sh --print-prefix   prints where it is (or will be) and does nothing else
#
# The result is kept outside the tree, under a name made of the version and a hash of the recipe.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
setupName=qt
# shellcheck source=tools/setup/common.sh
source "$here/common.sh"
# shellcheck source=tools/setup/recipes/qt.sh
source "$here/recipes/qt.sh"

# The host's moc, rcc and uic come from this package, so its version is Qt's version here.
qtVersion=$(packageVersion qtbase5-dev-tools)
cache=$(cacheRoot)
qtKey="qt-$(upstreamVersion "$qtVersion")-$(hashOf "$here/recipes/qt.sh" <(echo "$qtVersion"))"
qtPrefix="$cache/$qtKey"

if [[ ${1:-} == --print-prefix ]]; then
    printf '%s\n' "$qtPrefix"
    exit 0
fi
[[ -e $qtPrefix ]] && exit 0

takeLock "$cache/qt.lock"
[[ -e $qtPrefix ]] && exit 0

qtJobs=${SETUP_JOBS:-$(nproc)}
work="$cache/work-qt"
qtSource="$work/source"
qtBuild="$work/build"
qtStage="$work/stage"
setupLog="$cache/$qtKey.log"

# A tree that was left half-built cannot be trusted to resume: it is quicker to start over than to
# find out why a later stage fails.
rm -rf "$work"
mkdir -p "$work"
: >"$setupLog"

say "building Qt $qtVersion for Windows once (log: $setupLog)"
runStage "fetching the source" 0 fetchDebianSource qtbase-opensource-src "$qtVersion" "$work"
runStage "configuring" 0 qtConfigure
# The recipe's figure is part of the key, and too high: 985 calls were counted.
runStage "compiling" "$((qtCompilerCalls * 7 / 10))" qtCompile
runStage "installing" 0 qtInstall
mv "$qtStage$qtPrefix" "$qtPrefix"
rm -rf "$work"
say "Qt is ready in $qtPrefix ($(du -sh "$qtPrefix" | cut -f1))"
