# shellcheck shell=bash
# Shared by the set-up scripts: where the cache is, one-at-a-time locks, stages with visible
# progress, Debian source packages, and libraries built from them. Sourced, never run. The caller
# sets $setupName (shown in front of every line) and, before its first stage, $setupLog.
# shellcheck disable=SC2154

setupFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
setupStart=$SECONDS
stagePid=""

# The cache lies outside the tree, so that all clones share it.
cacheRoot() {
    printf '%s\n' "${XDG_CACHE_HOME:-$HOME/.cache}/tessera-uninstall"
}

elapsed() {
    local seconds=$((SECONDS - setupStart))
    printf '%d:%02d' $((seconds / 60)) $((seconds % 60))
}

say() {
    printf '[%s %s] %s\n' "$setupName" "$(elapsed)" "$*" >&2
}

die() {
    say "error: $*"
    exit 1
}

# hashOf FILE...: a short key that changes when a recipe changes.
hashOf() {
    cat -- "$@" | sha256sum | cut -c1-12
}

packageVersion() {
    dpkg-query -W -f '${Version}' "$1" 2>/dev/null ||
        die "package $1 is not installed; run tools/setup/packages.sh"
}

# 1:5.15.8+dfsg-11+deb12u3 -> 5.15.8
upstreamVersion() {
    local version=${1#*:}
    version=${version%%-*}
    printf '%s\n' "${version%%+*}"
}

# takeLock FILE: holds the lock until this script ends, so that parallel set-ups build only once.
# Every stage runs without descriptor 9: a lingering tool must not keep the lock.
takeLock() {
    mkdir -p "$(dirname "$1")"
    exec 9>"$1"
    if ! flock -n 9; then
        say "waiting for another set-up that holds $1"
        flock 9
    fi
}

stopStage() {
    if [[ -n $stagePid ]]; then
        kill -TERM -- "-$stagePid" 2>/dev/null || true
    fi
}

trap 'stopStage; exit 130' INT
trap 'stopStage; exit 143' TERM HUP

# progressOf STEPS: "43 %, src/corelib" from the compiler lines in $setupLog.
progressOf() {
    local steps=$1 count last percent=""
    # The whole log is read again and again, so the patterns are plain texts.
    count=$(grep -cF -e ' -c ' -e '  CC ' "$setupLog" || true)
    last=$(tail -n 40 "$setupLog" | grep -oE '[^ ]+\.(cpp|c|cc)( |$)' | tail -n 1 |
        sed 's,^\(\.\./\)*,,' || true)
    if ((steps > 0)); then
        percent=$((count * 100 / steps))
        ((percent > 99)) && percent=99
        percent="$percent %, "
    fi
    printf '%s%s' "$percent" "${last:-starting}"
}

# runStage TITLE STEPS COMMAND...: runs the command with its output in $setupLog and reports its
# progress every 15 seconds. STEPS is the expected number of compiler calls, 0 when unknown.
runStage() {
    local title=$1 steps=$2 status=0 nextReport=15 begun=$SECONDS
    shift 2
    say "$title"
    printf '=== %s\n' "$title" >>"$setupLog"
    set -m
    (set -e; "$@") </dev/null >>"$setupLog" 2>&1 9>&- &
    stagePid=$!
    set +m
    while kill -0 "$stagePid" 2>/dev/null; do
        sleep 0.5
        if ((SECONDS - begun >= nextReport)); then
            say "$title: $(progressOf "$steps")"
            nextReport=$((nextReport + 15))
        fi
    done
    wait "$stagePid" || status=$?
    stagePid=""
    if ((status != 0)); then
        say "failed: $title (exit code $status); the last lines of $setupLog:"
        tail -n 30 "$setupLog" >&2
        exit 1
    fi
}

# The machine's own mirrors of Debian, as source lists; nothing on the machine is changed. Other
# makers' archives are left out: their keys are often known for their own entries only.
writeSourceList() {
    # shellcheck disable=SC2016 # the placeholders are apt's
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' |
        sort -u | sed 's/^/deb-src /'
}

# fetchDebianSource NAME VERSION FOLDER: unpacks the source package, with Debian's patches, into
# FOLDER/source. An older VERSION may have left the mirror: then the newest one is taken, as long
# as it is the same upstream release.
fetchDebianSource() {
    local name=$1 version=$2 folder=$3 found
    local -a apt=(apt-get -q
        -o "Dir::Etc::SourceList=$folder/apt/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o "Dir::State::Lists=$folder/apt/lists" -o "Dir::Cache=$folder/apt/cache"
        -o APT::Sandbox::User= -o APT::Get::List-Cleanup=0)
    mkdir -p "$folder/apt/lists/partial" "$folder/apt/cache/archives/partial" "$folder/download"
    writeSourceList >"$folder/apt/sources.list"
    "${apt[@]}" update
    cd "$folder/download"
    if ! "${apt[@]}" source --download-only "$name=$version"; then
        "${apt[@]}" source --download-only "$name"
    fi
    found=$(sed -n 's/^Version: //p' ./*.dsc | head -n 1)
    if [[ $(upstreamVersion "$found") != "$(upstreamVersion "$version")" ]]; then
        echo "the mirror has $name $found, but $version is installed here"
        return 1
    fi
    dpkg-source --no-check -x ./*.dsc "$folder/source"
}

# applyPatches FOLDER PATCH...
applyPatches() {
    local folder=$1 patch
    shift
    for patch in "$@"; do
        patch -s -d "$folder" -p1 <"$patch"
    done
}

# buildLibrary NAME TITLE SOURCE_PACKAGE VERSION COMPILER_CALLS [--print-prefix]: cross-builds a
# library from Debian's source package by recipes/NAME.sh, once. The result is kept outside the
# tree, in a folder named by the version and a hash of the recipe and of patches/NAME/*.patch; the
# option prints that folder and does nothing else.
#
# The caller has sourced the recipe. Its functions NAMEConfigure, NAMECompile and NAMEInstall get
# their folders in $NAMESource, $NAMEBuild, $NAMEPrefix, $NAMEStage and $NAMEPatches, and the number
# of parallel compilers in $NAMEJobs.
buildLibrary() {
    local name=$1 title=$2 package=$3 version=$4 compilerCalls=$5 cache key prefix work
    local -a patches=()
    if [[ -d $setupFolder/patches/$name ]]; then
        patches=("$setupFolder/patches/$name"/*.patch)
    fi
    cache=$(cacheRoot)
    key=$name-$(upstreamVersion "$version")
    key+=-$(hashOf "$setupFolder/recipes/$name.sh" <(echo "$version") "${patches[@]}")
    prefix="$cache/$key"
    if [[ ${6:-} == --print-prefix ]]; then
        printf '%s\n' "$prefix"
        return
    fi
    [[ -e $prefix ]] && return
    takeLock "$cache/$name.lock"
    [[ -e $prefix ]] && return

    work="$cache/work-$name"
    setupLog="$cache/$key.log"
    declare -g "${name}Jobs=${SETUP_JOBS:-$(nproc)}" "${name}Prefix=$prefix" \
        "${name}Patches=$setupFolder/patches/$name" \
        "${name}Source=$work/source" "${name}Build=$work/build" "${name}Stage=$work/stage"

    # A half-built tree is not resumed.
    rm -rf "$work"
    mkdir -p "$work"
    : >"$setupLog"

    say "building $title $version for Windows once (log: $setupLog)"
    runStage "fetching the source" 0 fetchDebianSource "$package" "$version" "$work"
    runStage "patching it" 0 applyPatches "$work/source" "${patches[@]}"
    runStage "configuring" 0 "${name}Configure"
    runStage "compiling" "$compilerCalls" "${name}Compile"
    runStage "installing" 0 "${name}Install"
    mv "$work/stage$prefix" "$prefix"
    rm -rf "$work"
    say "$title is ready in $prefix ($(du -sh "$prefix" | cut -f1))"
}
