#!/bin/sh
# Runs a Windows program headless under wine: run-under-wine.sh PREFIX PROGRAM [ARGUMENT...]
#
# PREFIX is wine's folder, made on first use. Its server stays for a while, so that the next program starts fast.
set -eu
WINEPREFIX=$1
shift
export WINEPREFIX
# Quiet, without a display, and without offers to install a browser or another runtime.
export WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe=' DISPLAY=
# Names of files and arguments are UTF-8, whatever the caller's language.
export LC_ALL=C.UTF-8
# One at a time makes the prefix; the others wait for it.
if [ ! -e "$WINEPREFIX/made" ]; then
    mkdir -p "$WINEPREFIX"
    (
        flock 9
        if [ ! -e "$WINEPREFIX/made" ]; then
            wineboot --init >/dev/null 2>&1 9>&-
            wineserver --wait 9>&-
            touch "$WINEPREFIX/made"
        fi
    ) 9>"$WINEPREFIX/lock"
fi
# The server and its services are started here and not by the program, whose output would stay open as long as they
# stay. The server says by its status whether one ran before; only one caller starts it, the others wait for it.
(
    flock 9
    if wineserver --persistent=60 </dev/null >/dev/null 2>&1 9>&-; then
        wine cmd /c exit </dev/null >/dev/null 2>&1 9>&- || true
    fi
) 9>"$WINEPREFIX/lock"
exec wine "$@"
