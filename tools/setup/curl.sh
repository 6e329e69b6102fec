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
# The recipe's variables are set by buildLibrary.
# shellcheck source=tools/setup/recipes/curl.sh disable=SC2154
source "$here/recipes/curl.sh"

# The host tests link this package, so both builds talk through the same release.
curlVersion=$(packageVersion libcurl4-openssl-dev)
buildLibrary curl libcurl curl "$curlVersion" "$curlCompilerCalls" "$@"
