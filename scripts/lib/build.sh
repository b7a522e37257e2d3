# shellcheck shell=bash
# Configuring and compiling. PRESET in the environment picks another preset than mingw, BUILD_FLAGS is handed to ninja.

PRESET=${PRESET:-mingw}
BUILD_FLAGS=${BUILD_FLAGS:-}
# shellcheck disable=SC2034 # for the other parts
# shellcheck disable=SC2034 # for wine.sh and commands.sh
BIN=build/$PRESET/bin

# build TARGET...: compiles the named targets; "all" is one.
build() {
    [ -f "build/$PRESET/build.ninja" ] || configure
    say "Building (build/$PRESET)"
    if [ -t 1 ]; then
        # shellcheck disable=SC2086 # a list of words
        cmake --build "build/$PRESET" -j "$(nproc)" --target "$@" -- $BUILD_FLAGS
    else
        build_quietly "$@"
    fi
}

configure() {
    say "Configuring (build/$PRESET)"
    local log=build/configure-$PRESET.log
    mkdir -p build
    cmake --preset "$PRESET" >"$log" 2>&1 </dev/null || {
        cat "$log" >&2
        fail "Configuring failed."
    }
}

# Without a terminal the compiler's messages are wanted, not each step.
build_quietly() {
    local log=build/build-$PRESET.log
    # shellcheck disable=SC2086 # a list of words
    cmake --build "build/$PRESET" -j "$(nproc)" --target "$@" -- $BUILD_FLAGS >"$log" 2>&1 </dev/null || {
        grep -vE '^\[[0-9]+/[0-9]+\] (Building|Linking|Re-checking|Re-running)' "$log" >&2
        fail "The build failed; $log has all of it."
    }
}

# need_program NAME: builds the program with what it needs.
need_program() {
    build "$1"
}
