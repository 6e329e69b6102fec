#!/usr/bin/env bash
# Cross-builds static libcurl for 64-bit Windows from Debian's source package, once.
#
#   tools/setup/curl.sh                  builds it if it is missing
#   tools/setup/curl.sh --print-prefix   prints where it is (or will be) and does nothing else
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
setupName=curl
# shellcheck source=tools/setup/common.sh
source "$here/common.sh"
# shellcheck source=tools/setup/recipes/curl.sh
source "$here/recipes/curl.sh"

# The host tests link this package, so both builds talk through the same release.
curlVersion=$(packageVersion libcurl4-openssl-dev)
cache=$(cacheRoot)
curlKey="curl-$(upstreamVersion "$curlVersion")-$(hashOf "$here/recipes/curl.sh" <(echo "$curlVersion"))"
curlPrefix="$cache/$curlKey"

if [[ ${1:-} == --print-prefix ]]; then
    printf '%s\n' "$curlPrefix"
    exit 0
fi
[[ -e $curlPrefix ]] && exit 0

takeLock "$cache/curl.lock"
[[ -e $curlPrefix ]] && exit 0

curlJobs=${SETUP_JOBS:-$(nproc)}
work="$cache/work-curl"
curlSource="$work/source"
curlBuild="$work/build"
curlStage="$work/stage"
setupLog="$cache/$curlKey.log"

rm -rf "$work"
mkdir -p "$work"
: >"$setupLog"

say "building libcurl $curlVersion for Windows once (log: $setupLog)"
runStage "fetching the source" 0 fetchDebianSource curl "$curlVersion" "$work"
runStage "configuring" 0 curlConfigure
runStage "compiling" "$curlCompilerCalls" curlCompile
runStage "installing" 0 curlInstall
mv "$curlStage$curlPrefix" "$curlPrefix"
rm -rf "$work"
say "libcurl is ready in $curlPrefix ($(du -sh "$curlPrefix" | cut -f1))"
