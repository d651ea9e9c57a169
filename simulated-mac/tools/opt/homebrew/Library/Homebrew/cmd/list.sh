# brew list: all that is installed, the versions of it, or the files of what is named.
# shellcheck disable=SC2154 # brew itself sets what is used here

# list_folder FOLDER: the names in the Cellar or the Caskroom, one a line.
list_folder() {
    for entry in "$root$1"/*; do
        [ -d "$entry" ] || continue
        entry=${entry##*/}
        case $options in
        *' --versions '*)
            find_version "$1" "$entry"
            printf '%s %s\n' "$entry" "$version"
            ;;
        *) printf '%s\n' "$entry" ;;
        esac
    done
}

list_formula() {
    find_version "$cellar" "$1" || return 1
    case $options in
    *' --versions '*) printf '%s %s\n' "$1" "$version" ;;
    *)
        find "$root$cellar/$1/$version" -type f | while IFS= read -r file; do
            printf '%s\n' "${file#"$root"}"
        done
        ;;
    esac
}

list_cask() {
    find_version "$caskroom" "$1" || return 1
    case $options in
    *' --versions '*)
        printf '%s %s\n' "$1" "$version"
        return
        ;;
    esac
    find_cask "$1" || return 0
    while [ -n "$artifacts" ]; do
        artifact=${artifacts%%;*}
        artifacts=${artifacts#"$artifact"}
        artifacts=${artifacts#;}
        case $artifact in
        app:*) printf '==> Apps\n/Applications/%s\n' "${artifact#*:}" ;;
        font:*) printf '==> Fonts\n%s/Library/Fonts/%s\n' "$home" "${artifact#*:}" ;;
        stage:*) printf '==> Staged content\n%s/%s/%s/%s\n' "$caskroom" "$1" "$version" "${artifact#*:}" ;;
        esac
    done
}

parse_arguments "$@"
if [ -z "$names" ]; then
    [ "$kind" = cask ] || list_folder "$cellar"
    [ "$kind" = formula ] || list_folder "$caskroom"
    exit 0
fi
result=0
while IFS= read -r name; do
    [ -n "$name" ] || continue
    asked=$name
    if [ "$kind" != cask ] && list_formula "$asked"; then
        :
    elif [ "$kind" != formula ] && list_cask "$asked"; then
        :
    else
        result=1
        case $kind in
        cask) printf "Error: Cask '%s' is not installed.\n" "$asked" >&2 ;;
        *) printf 'Error: No such keg: %s/%s\n' "$cellar" "$asked" >&2 ;;
        esac
    fi
done <<EOF
$names
EOF
exit "$result"
