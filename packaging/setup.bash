# Sourced by ./check and what builds for ./run, with `root` set to the project folder: what both need
# before they can build. Everything is said on standard error; standard output belongs to the caller.

# Compiled objects are kept below the project folder, like all else that a build writes.
export CCACHE_DIR=${CCACHE_DIR:-$root/.cache/ccache}
# Without this ccache passes by whatever uses a precompiled header.
export CCACHE_SLOPPINESS=pch_defines,time_macros${CCACHE_SLOPPINESS:+,$CCACHE_SLOPPINESS}

# The script that the user called, for what is said.
called_as=${called_as:-${0##*/}}

say() { printf '%s: %s\n' "$called_as" "$*" >&2; }

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

# Installs what is missing for the purposes given (run, check, deep). Fails where that is not possible.
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
        say "once that is done, call $called_as again"
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

# Options for cmake that a script wants besides those of the preset.
tree_options=()

# Configures the tree build/PRESET if it was not set up here, with at least these options, and since
# what a set-up depends on was last changed: ./check is content with what ./check --deep has set up.
# What has been compiled already stays.
set_up_tree() {
    local mark=$root/build/$1/set-up.mark set_up_as="$root ${tree_options[*]-}" input fresh=1
    [[ -e $mark && $(<"$mark") == "$set_up_as"* ]] || fresh=
    for input in CMakePresets.json packaging/debian-packages.txt; do
        [[ $mark -nt $root/$input ]] || fresh=
    done
    [[ $fresh ]] && return
    quietly cmake --fresh -S "$root" -B "$root/build/$1" --preset "$1" "${tree_options[@]}" &&
        printf '%s' "$set_up_as" >"$mark"
}

# Runs a command whose output matters only when it fails.
quietly() {
    local output
    output=$("$@" 2>&1 </dev/null) || { printf '%s\n' "$output" >&2; return 1; }
}

# build_tree PRESET [TARGET...] sets build/PRESET up and builds it. What the compilers say is shown
# only if the build fails.
build_tree() {
    local tree=$1
    shift
    (cd "$root" && set_up_tree "$tree") || return
    {
        NINJA_STATUS=$'\1%f %t ' ninja -C "$root/build/$tree" -j "$(nproc)" "$@" </dev/null 2>&1 &&
            printf '\2\n'
    } | tell_progress
}

# Tells how far a build of ninja is, on a terminal in a line that is drawn over, elsewhere in a line
# at each quarter; then whatever else it said, if it did not end well.
tell_progress() {
    local line done_now all steps=0 said='' told=0 well=
    while IFS= read -r line; do
        case $line in
        $'\1'*) ;;
        $'\2') well=1 ;;
        *) said+=$line$'\n' ;;
        esac
        [[ $line == $'\1'* ]] || continue
        read -r done_now all _ <<<"${line#?}"
        ((all == steps)) || steps=$all told=0 # it has found out that there is more to do
        if [[ -t 2 ]]; then
            printf '\r\e[K%s: building %s of %s' "$called_as" "$done_now" "$all" >&2
        elif ((done_now * 4 / all > told)); then
            told=$((done_now * 4 / all))
            say "building $done_now of $all"
        fi
    done
    [[ -t 2 ]] && printf '\r\e[K' >&2
    [[ $well ]] && return
    printf '%s' "$said" >&2
    return 1
}
