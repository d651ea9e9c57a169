# Application bundles: writing, signing and reading them. Used by the tools of the Mac and by the programs that build one.
#
# The signature is a small text file, Contents/_CodeSignature/CodeResources, with one NAME=VALUE a line. Its seal is a
# checksum over all other files and links of the bundle, so that a copy that is really damaged is also really found to be so.

# Sets `escaped` to the text $1 as XML character data.
escape_xml() {
    escaped=$1
    case $1 in
    *['&<>']*) escaped=$(printf '%s' "$1" | sed 's/&/\&amp;/g; s/</\&lt;/g; s/>/\&gt;/g') ;;
    esac
}

# plist_entry KEY TEXT: one line of a property list's dictionary; nothing for an empty text.
plist_entry() {
    [ -n "$2" ] || return 0
    escape_xml "$2"
    printf '\t<key>%s</key>\n\t<string>%s</string>\n' "$1" "$escaped"
}

plist_head='<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>'
plist_tail='</dict>
</plist>'

# write_bundle FOLDER NAME IDENTIFIER VERSION [COPYRIGHT]: an unsigned application. FOLDER is a path of the host.
# An empty IDENTIFIER or VERSION leaves its key out.
write_bundle() {
    mkdir -p "$1/Contents/MacOS" "$1/Contents/Resources" || return 1
    {
        printf '%s\n' "$plist_head"
        plist_entry CFBundleName "$2"
        plist_entry CFBundleDisplayName "$2"
        plist_entry CFBundleExecutable "$2"
        plist_entry CFBundleIdentifier "$3"
        plist_entry CFBundlePackageType APPL
        plist_entry CFBundleShortVersionString "$4"
        plist_entry CFBundleVersion "$4"
        plist_entry NSHumanReadableCopyright "${5-}"
        printf '%s\n' "$plist_tail"
    } >"$1/Contents/Info.plist" || return 1
    printf 'APPL????' >"$1/Contents/PkgInfo"
    printf '#!/bin/sh\n# Stand-in for the executable of an application.\nexit 0\n' >"$1/Contents/MacOS/$2"
    chmod 755 "$1/Contents/MacOS/$2"
}

# Prints the seal of the bundle $1. A store receipt comes after the signature on a Mac too, and so is no part of it.
seal_of() {
    (
        CDPATH='' cd -- "$1" || exit 1
        # shellcheck disable=SC2016 # for the inner shell
        find . \( -path ./Contents/_CodeSignature -o -path ./Contents/_MASReceipt \) -prune \
            -o -type f ! -name .DS_Store -exec cksum {} + \
            -o -type l -exec sh -c 'for link; do printf "%s -> %s\n" "$link" "$(readlink "$link")"; done' sh {} + |
            LC_ALL=C sort | cksum
    )
}

# sign_bundle FOLDER KIND IDENTIFIER TEAM DEVELOPER GATEKEEPER: seals the bundle as it stands.
# KIND is developer-id, app-store, apple, adhoc, invalid (a developer's, whose seal does not hold) or unsigned.
sign_bundle() {
    rm -rf "$1/Contents/_CodeSignature"
    [ "$2" != unsigned ] || return 0
    mkdir "$1/Contents/_CodeSignature" || return 1
    sign_kind=$2
    sign_seal=$(seal_of "$1")
    if [ "$sign_kind" = invalid ]; then
        sign_kind='developer-id'
        sign_seal='0 0'
    fi
    printf 'kind=%s\nidentifier=%s\nteam=%s\ndeveloper=%s\ngatekeeper=%s\nseal=%s\n' \
        "$sign_kind" "$3" "$4" "$5" "$6" "$sign_seal" >"$1/Contents/_CodeSignature/CodeResources"
}

# Reads the signature of the bundle $1 into `kind`, `identifier`, `team`, `developer`, `gatekeeper`, `seal`.
# False if there is none.
# shellcheck disable=SC2034 # the tools read them
read_signature() {
    kind='' identifier='' team='' developer='' gatekeeper='' seal=''
    [ -r "$1/Contents/_CodeSignature/CodeResources" ] || return 1
    while IFS= read -r line; do
        case $line in
        kind=*) kind=${line#*=} ;;
        identifier=*) identifier=${line#*=} ;;
        team=*) team=${line#*=} ;;
        developer=*) developer=${line#*=} ;;
        gatekeeper=*) gatekeeper=${line#*=} ;;
        seal=*) seal=${line#*=} ;;
        esac
    done <"$1/Contents/_CodeSignature/CodeResources"
}

# Sets `info` to the text under the key $2 in the Info.plist of the bundle $1. False if there is none.
read_info() {
    info=$(sed -n "/<key>$2<\\/key>/{n;s/.*<string>\\(.*\\)<\\/string>.*/\\1/;s/&lt;/</g;s/&gt;/>/g;s/&amp;/\\&/g;p;q;}" \
        "$1/Contents/Info.plist" 2>/dev/null)
    [ -n "$info" ]
}

# write_command FILE FORMULA VERSION: a command of a formula, which says its name and version.
write_command() {
    # shellcheck disable=SC2016 # written as it stands
    printf '#!/bin/sh\n# Stand-in for a command of %s.\n. "${TAVELO_MAC_HOST_ROOT:?is not set}/usr/libexec/simulated-mac/common.sh"\nbegin %s "$@"\necho "%s %s"\n' \
        "$2" "${1##*/}" "${1##*/}" "$3" >"$1" && chmod 755 "$1"
}

# write_image FILE FOLDER: a disk image of what FOLDER holds: an archive, closed by the mark that ends a real image.
write_image() {
    {
        tar -cf - -C "$2" . && printf koly && head -c 508 /dev/zero
    } >"$1"
}

# Sets `application` to the Mac path of an installed application whose identifier is $1, in whatever case. Needs common.sh.
# shellcheck disable=SC2154
find_identifier() {
    [ -n "$1" ] || return 1
    application=$(grep -lisF "<string>$1</string>" "$root"/Applications/*.app/Contents/Info.plist \
        "$root"/Applications/*/*.app/Contents/Info.plist "$root$home"/Applications/*.app/Contents/Info.plist \
        "$root"/System/Applications/*.app/Contents/Info.plist "$root"/System/Applications/*/*.app/Contents/Info.plist |
        head -n 1)
    [ -n "$application" ] || return 1
    application=${application#"$root"}
    application=${application%/Contents/Info.plist}
}
