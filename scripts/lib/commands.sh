# shellcheck shell=bash
# The commands of ./run. A command whose program this tree does not have is not offered.

is_command() { command_lines | cut -d '|' -f 1 | grep -x "$1" >/dev/null; }

# Name, what may follow it, what it does.
command_lines() {
    cat <<'TEXT'
gallery||shows every control; without a display it leaves pictures in build/shots
test|[filter]|runs the tests, or those whose name contains the filter (* and ? as wildcards)
bench||measures what things cost; prints a table and writes build/bench.json
shots|[folder]|draws every page of the gallery to a PNG in the folder (build/shots)
TEXT
    [ ! -d designer ] || echo "designer||opens the form designer"
    [ ! -d tools/dfm ] || echo "dfm|...|checks, converts and shows form files; ./run dfm help tells how"
    cat <<'TEXT'
soak|[filter]|runs the tests that take long
lint|[check]|checks the house rules
artwork|[--check]|draws the skin's bitmaps anew, or only compares them
build|[target]|compiles everything, or one target
help||shows this
TEXT
}

command_help() {
    local name arguments meaning
    while IFS='|' read -r name arguments meaning; do
        printf './run %-18s %s\n' "$name $arguments" "$meaning"
    done < <(command_lines)
    printf '\n%s\n' "PRESET=mingw-static (or mingw-ubsan, clang) in front picks another build than mingw."
}

command_build() {
    need build
    [ "$PRESET" != clang ] || need lint
    build "${@:-all}"
}

command_test() { run_tests "$@"; }

command_soak() { run_tests --soak "$@"; }

run_tests() {
    need build wine
    build all
    wine_ready null
    windows_ready
    scripts/testing/run_tests.py --bin "$BIN" "$@" &
    wait $!
}

# Now and then a Wine server comes up in a state in which no program can make a window; another one cures that. A test
# program without tests only tries to make one.
windows_ready() {
    local attempt
    for attempt in 1 2 3; do
        if wine_run harness_tests --gtest_filter=-* >/dev/null; then return; fi
        say "No window can be made; starting Wine again ($attempt)"
        wineserver -k || true
        wake_wine || true
    done
}

command_bench() {
    need build wine
    need_program bench
    stay_on_one_processor
    wine_ready null
    WINE_TIMEOUT=1800 wine_run bench --json build/bench.json "$@"
}

# Wine's server and the program take turns. Where each sits on a processor of its own, every request waits for the other
# one to wake up; on one processor none does. A server that another command has started stays where it is.
stay_on_one_processor() {
    [ -n "${ONE_PROCESSOR:-}" ] || return 0
    taskset -cp "$(($(nproc) - 1))" $$ >/dev/null
}

command_shots() {
    need build wine
    need_program gallery
    draw_pages "${1:-build/shots}"
}

draw_pages() {
    local folder=$1
    wine_ready null
    rm -rf "$folder"
    mkdir -p "$folder"
    say "Drawing every page of the gallery"
    wine_run gallery --shots "$folder" >build/gallery.log || {
        cat build/gallery.log >&2
        fail "The gallery could not draw its pages."
    }
    name_pictures "$folder"
}

name_pictures() {
    local picture count=0
    for picture in "$1"/*.png; do
        [ -f "$picture" ] || continue
        echo "$picture"
        count=$((count + 1))
    done
    [ "$count" -gt 0 ] || fail "No picture was drawn."
}

command_gallery() { show_program gallery "$@"; }

command_designer() { show_program designer "$@"; }

command_dfm() {
    need build wine
    need_program dfm
    wine_ready null
    # Files are named as seen from where the command was given.
    (cd "$CALLER" && exec "$ROOT/scripts/wine-run" "$ROOT/$BIN/dfm.exe" "$@") &
    wait $!
}

command_lint() {
    need build wine lint
    scripts/lint/lint.py "$@" &
    wait $!
}

command_artwork() {
    need build wine
    build skinart
    wine_ready null
    wine_run skinart "$@" resources
}

# On a display: real windows until they are closed. Without one: pictures.
show_program() {
    local program=$1
    shift
    if [ -n "${DISPLAY:-}" ]; then need build wine; else need build wine display; fi
    if display_answers; then
        need_program "$program"
        wine_ready x11
        match_window_manager
        say "Starting $program"
        WINE_TIMEOUT=0 wine_run "$program" "$@"
    else
        picture_screen "$program" "build/$program-screen.png" "$@"
        [ "$program" != gallery ] || draw_pages build/shots
    fi
}

# picture_screen PROGRAM FILE ARGUMENT...: starts the program on an X server of our own and saves the screen.
picture_screen() {
    local program=$1 file=$2 pid
    shift 2
    say "There is no display, so $program leaves pictures"
    need display
    need_program "$program"
    start_display
    wine_ready x11
    match_window_manager
    say "Starting $program"
    scripts/wine-run "$BIN/$program.exe" "$@" &
    pid=$!
    screen_picture "$file" "$pid"
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
    stop_wine
    stop_display
    echo "$file"
}
