# shellcheck shell=bash
# Where Wine is, and the environment of its processes. Sourced, never run.

# Debian's /usr/bin/wine prints a hint about 32-bit support at every start; the 64-bit loader
# behind it does not.
# shellcheck disable=SC2034 # the names are used by the scripts that source this file
{
    wineLoader=/usr/lib/wine/wine64
    wineServer=/usr/lib/wine/wineserver
    wineLibraries=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows
    wineData=/usr/share/wine
}
if [[ ! -x $wineLoader ]]; then
    wineLoader=$(command -v wine64 || command -v wine || echo wine)
    wineServer=$(command -v wineserver || echo wineserver)
fi
export WINELOADER="$wineLoader"
export WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}
# No offers to download .NET or a browser engine, and no menu entries on the developer's desktop.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=;winemenubuilder.exe=d}
# The locale decides Windows' ANSI code page; C.UTF-8 gives US English and 1252 on every machine.
export LC_ALL=${WINE_RUN_LOCALE:-C.UTF-8}
# Every program with a window would read X's long table of composed letters, which nobody types here.
export XCOMPOSEFILE=/dev/null

# Without a console Qt sends its messages, and Qt Test its results, to the debugger only.
export QT_FORCE_STDERR_LOGGING=${QT_FORCE_STDERR_LOGGING-1}

# windowsPath FILE: a Unix path as Windows programs see it. The prefix's drive is C:, everything else
# is below Z:.
windowsPath() {
    local path drive
    { read -r path && read -r drive; } < <(realpath -m -s -- "$1" "$WINEPREFIX/drive_c")
    if [[ $path == "$drive"/* ]]; then
        path="C:${path#"$drive"}"
    else
        path="Z:$path"
    fi
    printf '%s\n' "${path//\//\\}"
}
