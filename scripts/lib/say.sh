# shellcheck shell=bash
# Short messages about what is being done. They go to standard error, results go to standard output.

say() { printf '%s\n' "-- $*" >&2; }

fail() {
    printf '%s\n' "run: $*" >&2
    exit 1
}
