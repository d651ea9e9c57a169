# What the programs that change a simulated Mac from outside share. They set `program` before.

# shellcheck disable=SC2154
fail() {
    printf '%s: %s\n' "$program" "$1" >&2
    exit "${2-1}"
}

# Sets `root` and `state` to those of the simulated Mac in $1.
use_mac() {
    [ -f "$1/private/var/simulated-mac/made-by-make-mac" ] || fail "not a simulated Mac: $1"
    root=$(cd "$1" && pwd)
    # shellcheck disable=SC2034 # the programs read it
    state=$root/private/var/simulated-mac
}

# need_value OPTION COUNT: ends unless more than one argument is left.
need_value() {
    [ "$2" -gt 1 ] || fail "$1 needs a value" 2
}
