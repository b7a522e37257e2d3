# shellcheck shell=bash
# Wine: the prefix, its server, and running programs in it.
#
# Tests and pictures of single windows run without a screen in build/wp; windows on a display have a prefix of their
# own, build/wp-x11. A prefix named by WINEPREFIX is used as it is.

GIVEN_PREFIX=${WINEPREFIX:-}
SERVER_STARTED=""
USER_MARK=""

# wine_ready null|x11: makes the prefix and starts its server, if that is still to be done.
wine_ready() {
    local driver=$1
    export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
    choose_prefix "$driver"
    [ "$driver" = x11 ] || unset DISPLAY
    start_server "$driver"
}

choose_prefix() {
    if [ -n "$GIVEN_PREFIX" ]; then
        [ -f "$GIVEN_PREFIX/system.reg" ] || fail "WINEPREFIX names no Wine prefix: $GIVEN_PREFIX"
        return
    fi
    export WINEPREFIX=$ROOT/build/wp
    [ "$1" = null ] || WINEPREFIX+=-$1
    [ -f "$WINEPREFIX/.ready" ] || make_prefix "$1"
}

make_prefix() {
    say "Making the Wine prefix ${WINEPREFIX#"$ROOT"/}"
    scripts/wine-prefix "$WINEPREFIX" "$1" &
    wait $! || fail "Wine could not set up $WINEPREFIX"
}

# The server stays between programs, so that each starts in a hundredth of a second. Wine's services inherit the output
# of whoever starts them, so they are started here, with none.
start_server() {
    mkdir -p build/wine-users
    USER_MARK=build/wine-users/$(basename "$WINEPREFIX").$$
    : >"$USER_MARK"
    wineserver -k0 >/dev/null 2>&1 || SERVER_STARTED=yes
    wake_wine && return
    [ -z "$GIVEN_PREFIX" ] || fail "Wine does not start in $WINEPREFIX"
    make_prefix "$1"
    wake_wine || fail "Wine does not start in $WINEPREFIX"
}

wake_wine() {
    setsid wineserver -p >/dev/null 2>&1 </dev/null || true
    timeout 60 wine cmd /c exit >/dev/null 2>&1 </dev/null
}

# The last run to leave stops the server, unless it was there before the first.
stop_wine() {
    [ -n "$USER_MARK" ] || return 0
    local ours=${USER_MARK%.*}.ours
    [ -z "$SERVER_STARTED" ] || : >"$ours"
    rm -f "$USER_MARK"
    USER_MARK="" SERVER_STARTED=""
    other_users && return 0
    if [ -f "$ours" ]; then
        rm -f "$ours"
        timeout 20 wineserver -k >/dev/null 2>&1 || true
    fi
}

# Whether another run of this script is working in the same prefix.
other_users() {
    local mark pid
    for mark in build/wine-users/"$(basename "$WINEPREFIX")".[0-9]*; do
        [ -f "$mark" ] || continue
        pid=${mark##*.}
        if kill -0 "$pid" 2>/dev/null; then return 0; fi
        rm -f "$mark"
    done
    return 1
}

# wine_run PROGRAM ARGUMENT...: runs a program of the build, shows its output, returns its exit code.
wine_run() {
    local program=$1
    shift
    scripts/wine-run "$BIN/$program.exe" "$@" &
    wait $!
}
