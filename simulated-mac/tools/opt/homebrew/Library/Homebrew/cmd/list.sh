# brew list: all that is installed, the versions of it, or the files of what is named.
# shellcheck disable=SC2154 # brew itself sets what is used here

# list_versions FOLDER NAME: all that are installed, on one line.
list_versions() {
    line=$2
    for candidate in "$root$1/$2"/*; do
        [ ! -d "$candidate" ] || line="$line ${candidate##*/}"
    done
    printf '%s\n' "$line"
}

# list_folder FOLDER: the names in the Cellar or the Caskroom, one a line.
list_folder() {
    for entry in "$root$1"/*; do
        [ -d "$entry" ] || continue
        entry=${entry##*/}
        case $options in
        *' --versions '*) list_versions "$1" "$entry" ;;
        *) printf '%s\n' "$entry" ;;
        esac
    done
}

list_formula() {
    find_version "$cellar" "$1" || return 1
    case $options in
    *' --versions '*) list_versions "$cellar" "$1" ;;
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
        list_versions "$caskroom" "$1"
        return
        ;;
    esac
    find_cask "$1" || return 0
    while next_artifact; do
        case $type in
        app) printf '==> Apps\n/Applications/%s\n' "$placed" ;;
        font) printf '==> Fonts\n%s/Library/Fonts/%s\n' "$home" "$placed" ;;
        stage) printf '==> Staged content\n%s/%s/%s/%s\n' "$caskroom" "$1" "$version" "$source" ;;
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
