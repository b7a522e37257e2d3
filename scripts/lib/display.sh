# shellcheck shell=bash
# An X server of our own where there is no display, and pictures of its whole screen.

DISPLAY_PID=""

# start_display: starts an X server on a free display and exports DISPLAY.
start_display() {
    local number=build/display-number
    mkdir -p build
    : >"$number"
    setsid Xvfb -displayfd 3 -screen 0 1280x960x24 -nolisten tcp 3>"$number" >/dev/null 2>&1 </dev/null &
    DISPLAY_PID=$!
    wait_until 15 test -s "$number" || fail "The X server does not start."
    DISPLAY=:$(cat "$number")
    export DISPLAY
    say "Started an X server on display $DISPLAY"
}

stop_display() {
    [ -n "$DISPLAY_PID" ] || return 0
    kill "$DISPLAY_PID" 2>/dev/null || true
    wait "$DISPLAY_PID" 2>/dev/null || true
    DISPLAY_PID=""
    unset DISPLAY
}

# Whether DISPLAY names an X server that lets us in.
display_answers() {
    [ -n "${DISPLAY:-}" ] || return 1
    local code=0
    scripts/has-window-manager 2>/dev/null || code=$?
    [ "$code" != 2 ] || say "No X server answers on display $DISPLAY"
    [ "$code" != 2 ]
}

# Under a window manager windows are its own; without one, or on our own X server, Wine draws frames itself.
match_window_manager() {
    local managed=N settings
    if scripts/has-window-manager; then managed=Y; fi
    settings=$(mktemp --suffix=.reg)
    printf 'REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\Wine\\X11 Driver]\n"Managed"="%s"\n' "$managed" >"$settings"
    timeout 60 wine regedit /S "$settings" >/dev/null 2>&1 </dev/null || true
    rm -f "$settings"
}

# screen_picture FILE PID: waits until the screen shows the program's windows and stands still, then saves it.
screen_picture() {
    local file=$1 pid=$2
    rm -f "$file"
    wait_until 30 screen_stands_still "$file" "$pid" || say "The screen never came to rest; $file is its last state."
    rm -f "$file.before"
}

screen_stands_still() {
    local file=$1 pid=$2
    kill -0 "$pid" 2>/dev/null || fail "The program ended by itself before it was seen."
    [ ! -f "$file" ] || mv "$file" "$file.before"
    import -window root -define png:exclude-chunks=date,time "$file"
    [ "$(identify -format %k "$file")" -gt 8 ] && cmp -s "$file" "$file.before"
}

# wait_until SECONDS COMMAND...: repeats the command until it succeeds.
wait_until() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.2
    done
}
