# Sourced by ./run and ./check, with `root` set to the project folder: what both need before they
# can build. Everything is said on standard error; standard output belongs to the caller.

# Compiled objects are kept below the project folder, like all else that a build writes.
export CCACHE_DIR=${CCACHE_DIR:-$root/.cache/ccache}
# Without this ccache passes by whatever uses a precompiled header.
export CCACHE_SLOPPINESS=pch_defines,time_macros

say() { printf '%s: %s\n' "${0##*/}" "$*" >&2; }

# Prints the packages for the purposes given that are not installed.
missing_packages() {
    local purposes=" $* " purpose package rest wanted=()
    while read -r purpose package rest; do
        [[ $purpose != '#'* && $purposes == *" $purpose "* ]] && wanted+=("$package")
    done <"$root/packaging/debian-packages.txt"
    comm -23 <(printf '%s\n' "${wanted[@]}" | sort) \
        <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null |
            sed -n 's/ installed$//p' | sort)
}

# Prints what must stand before apt-get: nothing for root, sudo for who may use it.
privilege() {
    [[ $EUID == 0 ]] && return 0
    command -v sudo >/dev/null || return 1
    sudo -n true 2>/dev/null || [[ -t 0 && -t 2 ]] || return 1
    echo sudo
}

# Installs what is missing for the purposes given (run, check). Fails where that is not possible.
install_missing() {
    if ! command -v apt-get >/dev/null; then
        say "this needs Debian's apt-get; what to install is listed in" \
            "packaging/debian-packages.txt"
        return 1
    fi
    local missing sudo
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    if ! sudo=$(privilege); then
        say "these Debian packages are missing and only an administrator can install them:"
        printf '    apt-get install --no-install-recommends %s\n' "${missing[*]}" >&2
        say "once that is done, call ${0##*/} again"
        return 1
    fi
    say "installing ${missing[*]}"
    apt_get() {
        # shellcheck disable=SC2086 # an empty $sudo must vanish
        $sudo env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o Dpkg::Use-Pty=0 \
            -o DPkg::Lock::Timeout=300 "$@" </dev/null >&2
    }
    # The lists of a fresh machine are empty and those of an old one name files long gone.
    apt_get --simulate install --no-install-recommends "${missing[@]}" >/dev/null 2>&1 ||
        apt_get update
    apt_get install --no-install-recommends "${missing[@]}" ||
        { apt_get update && apt_get install --no-install-recommends "${missing[@]}"; }
}

# Configures the tree build/PRESET anew; what it has compiled already stays. Anew, because the
# folder may have been moved, a preset changed, or a package come since the last time.
configure() {
    (cd "$root" && cmake --fresh --preset "$1")
}
