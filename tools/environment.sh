#!/usr/bin/env bash
# Where the steps of ./arbor run. Sourced by it; gives arbor_environment and run.
#
# A machine with Qt 6.5 or later is used as it is. On any other one a private Debian 13 root is made once
# in the user's cache folder, and each step runs in it, at the same paths.

: "${HOME:=/tmp}"
readonly cache=${XDG_CACHE_HOME:-$HOME/.cache}/arbor
readonly packages_file=tools/packages.txt

refuse()
{
    echo "arbor: $1" >&2
    exit 1
}

# Asked of CMake as the build itself will ask, so that a Qt at a place of its own (CMAKE_PREFIX_PATH) is found.
host_is_enough()
{
    command -v cmake ninja c++ >/dev/null && cmake -S tools/probe -B build/probe -G Ninja >/dev/null 2>&1
}

# As root what is missing is installed; an ordinary user is told what to ask for.
need_sandbox_tools()
{
    local missing=()
    command -v mmdebstrap >/dev/null || missing+=(mmdebstrap)
    command -v bwrap >/dev/null || missing+=(bubblewrap)
    [ "$(id -u)" = 0 ] || command -v newuidmap >/dev/null || missing+=(uidmap)
    [ ${#missing[@]} != 0 ] || return 0

    if [ "$(id -u)" = 0 ] && command -v apt-get >/dev/null; then
        echo "arbor: installing ${missing[*]}" >&2
        { apt-get update && apt-get install -y --no-install-recommends "${missing[@]}"; } >&2 && return
    fi
    refuse "neither Qt 6.5 nor ${missing[*]} is here; install one of them (apt-get install ${missing[*]})."
}

# Sets user_namespace to what bubblewrap needs here: an ordinary user always has one of its own, root may need it.
try_sandbox()
{
    user_namespace=()
    bwrap --ro-bind / / true 2>/dev/null && return
    user_namespace=(--unshare-user)
    bwrap --unshare-user --ro-bind / / true 2>/dev/null ||
        refuse "Qt 6.5 is not here, and this machine allows no user namespaces for a private root."
}

# The name changes with what the root holds, so a new list makes a new root.
root_path() { echo "$cache/root-$(cat "$packages_file" tools/make_root | sha256sum | head -c 12)"; }

packages() { sed 's/#.*//' "$packages_file" | xargs | tr ' ' ','; }

# Sets sandbox to the command that runs another one inside the root. Nothing of the root can change in it.
enter_root()
{
    local root=$1 name history
    sandbox=(bwrap --die-with-parent "${user_namespace[@]}")
    for name in usr etc var; do sandbox+=(--ro-bind "$root/$name" "/$name"); done
    for name in bin lib lib64 sbin; do sandbox+=(--symlink "usr/$name" "/$name"); done
    for name in passwd group resolv.conf; do sandbox+=(--ro-bind-try "/etc/$name" "/etc/$name"); done
    sandbox+=(--proc /proc --dev /dev --dev-bind-try /dev/dri /dev/dri --bind /tmp /tmp --tmpfs /run --dir "$HOME")
    # In a worktree the history lies in another folder.
    if history=$(git rev-parse --path-format=absolute --git-common-dir 2>/dev/null); then
        sandbox+=(--ro-bind-try "$history" "$history")
    fi
    sandbox+=(--bind "$cache" "$cache" --ro-bind-try "$PWD/../shared/data" "$PWD/../shared/data"
        --bind "$PWD" "$PWD" --chdir "$PWD" --clearenv
        --setenv PATH /usr/bin:/usr/sbin --setenv HOME "$HOME" --setenv LC_ALL C.UTF-8
        --setenv CMAKE_CXX_COMPILER_LAUNCHER ccache)

    for name in XAUTHORITY XDG_RUNTIME_DIR; do
        [ -z "${!name:-}" ] || sandbox+=(--bind-try "${!name}" "${!name}")
    done
    for name in TERM USER DISPLAY WAYLAND_DISPLAY XAUTHORITY XDG_RUNTIME_DIR CMAKE_BUILD_PARALLEL_LEVEL \
        "${!CCACHE_@}" "${!CTEST_@}" "${!GTEST_@}" "${!QT_LOGGING_@}"; do
        [ -z "${!name:-}" ] || sandbox+=(--setenv "$name" "${!name}")
    done
}

# Files built in one environment are of no use in another.
keep_builds_of()
{
    local stamp=build/environment
    if [ -e "$stamp" ] && [ "$(cat "$stamp")" != "$1" ]; then rm -rf build; fi
    mkdir -p build
    echo "$1" >"$stamp"
}

# Sets where `run` runs its commands. ARBOR_PRIVATE_ROOT=1 takes the private root also where Qt is new enough.
arbor_environment()
{
    mkdir -p "$cache" build
    export CCACHE_DIR=${CCACHE_DIR:-$cache/ccache} CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
    sandbox=()
    if [ -z "${ARBOR_PRIVATE_ROOT:-}" ] && host_is_enough; then
        keep_builds_of host
        if command -v ccache >/dev/null; then export CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
        return
    fi

    local root
    root=$(root_path)
    need_sandbox_tools
    try_sandbox
    [ -d "$root" ] || tools/make_root "$root" "$(packages)" || refuse "the private root could not be made, see above."
    enter_root "$root"
    keep_builds_of "$root"
}

run() { "${sandbox[@]}" "$@"; }
