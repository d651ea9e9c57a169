# What the programs that change a simulated Mac from outside share. They set `program` before.

# shellcheck disable=SC2154
fail() {
    printf '%s: %s\n' "$program" "$1" >&2
    exit "${2-1}"
}

# Sets `root` and `state` to those of the simulated Mac in $1.
use_mac() {
    [ -f "$1/private/var/simulated-mac/made-by-make-mac" ] || fail "not a simulated Mac: $1"
    root=$(CDPATH='' cd -- "$1" && pwd)
    # shellcheck disable=SC2034 # the programs read it
    state=$root/private/var/simulated-mac
}

# refuse_dots PATH: ends if one of its components is "." or "..", with which it could lead out of the Mac.
refuse_dots() {
    case /$1/ in
    */./* | */../*) fail "a path with a component . or .. could leave the Mac: $1" 2 ;;
    esac
}

# write_receipt IDENTIFIER VERSION LOCATION: the receipt of an installer package. Needs bundle.sh.
write_receipt() {
    {
        printf '%s\n' "$plist_head"
        printf '\t<key>InstallDate</key>\n\t<date>2025-01-14T10:12:13Z</date>\n'
        plist_entry InstallPrefixPath "$3"
        plist_entry InstallProcessName installer
        plist_entry PackageIdentifier "$1"
        plist_entry PackageVersion "$2"
        printf '%s\n' "$plist_tail"
    } >"$root/private/var/db/receipts/$1.plist"
}

# need_value OPTION COUNT: ends unless more than one argument is left.
need_value() {
    [ "$2" -gt 1 ] || fail "$1 needs a value" 2
}
