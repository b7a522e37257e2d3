# shellcheck shell=bash
# The system's packages that each kind of work needs, and their installation on Debian.

# packages_of GROUP: the packages of one kind of work.
packages_of() {
    case $1 in
        build) echo cmake ninja-build g++-mingw-w64-x86-64-posix googletest ;;
        wine) echo wine wine64 fonts-wine python3 ;;
        display) echo xvfb imagemagick ;;
        lint) echo clang clang-format python3 git shellcheck ;;
    esac
}

# programs_of GROUP: programs that stand for the packages where there is no dpkg to ask.
programs_of() {
    case $1 in
        build) echo cmake ninja x86_64-w64-mingw32-g++ ;;
        wine) echo wine wineserver python3 ;;
        display) echo Xvfb import identify ;;
        lint) echo clang clang-format python3 git shellcheck ;;
    esac
}

# need GROUP...: installs what is missing, or says what to install and ends.
need() {
    local missing
    if command -v dpkg-query >/dev/null; then
        missing=$(missing_packages "$@")
        # shellcheck disable=SC2086 # a list of words
        [ -z "$missing" ] || install_packages $missing
    else
        missing=$(missing_programs "$@")
        [ -z "$missing" ] || fail "Missing programs: $missing. On Debian 12 this script installs them; here, please do."
    fi
}

# each FUNCTION WORD...: what the function says to every word.
each() {
    local function=$1 word
    shift
    for word in "$@"; do "$function" "$word"; done | tr ' ' '\n' | sort -u
}

missing_packages() {
    local package missing=""
    for package in $(each packages_of "$@"); do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=" $package"
    done
    echo "${missing# }"
}

missing_programs() {
    local program missing=""
    for program in $(each programs_of "$@"); do
        command -v "$program" >/dev/null || missing+=" $program"
    done
    echo "${missing# }"
}

install_packages() {
    local as_root
    if [ "$(id -u)" = 0 ]; then
        as_root=""
    elif command -v sudo >/dev/null && { [ -t 0 ] || sudo -n true 2>/dev/null; }; then
        as_root=sudo
    else
        fail "Missing packages. Install them as root: apt-get install --no-install-recommends $*"
    fi
    say "Installing $*"
    local log=build/packages.log
    mkdir -p build
    if ! { $as_root apt-get update && $as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y --no-install-recommends "$@"; } >"$log" 2>&1 </dev/null; then
        tail -n 5 "$log" >&2
        fail "The installation failed; $log has all of it."
    fi
}
