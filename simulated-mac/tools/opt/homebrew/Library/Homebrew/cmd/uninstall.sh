# brew uninstall: formulae, with what only they needed, and casks.
# shellcheck disable=SC2154 # brew itself sets what is used here

# Sets `requirers` to the installed formulae that need $1, with ", " between two.
find_requirers() {
    requirers=
    for other in "$root$cellar"/*; do
        [ -d "$other" ] || continue
        find_formula "${other##*/}" || continue
        case ",$dependencies," in
        *",$1,"*) requirers=$requirers${requirers:+, }$name ;;
        esac
    done
}

# remove_keg NAME: the links first, so that no command is left that leads nowhere.
remove_keg() {
    find_version "$cellar" "$1"
    say "Uninstalling $cellar/$1/$version... ($(find "$root$cellar/$1" -type f | wc -l | tr -d ' ') files)"
    for link in "$root$prefix/bin"/* "$root$prefix/opt/$1"; do
        [ -L "$link" ] || continue
        case $(readlink "$link") in
        "../Cellar/$1/"*) rm -f "$link" ;;
        esac
    done
    rm -rf "${root:?}$cellar/$1"
}

# Takes away what was installed as a dependency only and is needed no more.
autoremove() {
    again=yes
    while [ "$again" = yes ]; do
        again=no
        for keg in "$root$cellar"/*; do
            grep -qs '"installed_on_request":false' "$keg"/*/INSTALL_RECEIPT.json || continue
            keg=${keg##*/}
            find_requirers "$keg"
            [ -z "$requirers" ] || continue
            say "==> Autoremoving 1 unneeded formula: $keg"
            remove_keg "$keg"
            again=yes
        done
    done
}

uninstall_formula() {
    find_version "$cellar" "$1" || fail "No such keg: $cellar/$1"
    find_requirers "$1"
    case $options in
    *' --ignore-dependencies '*) ;;
    *)
        [ -z "$requirers" ] || fail "Refusing to uninstall $cellar/$1/$version
because it is required by $requirers, which is currently installed.
You can override this and force removal with:
  brew uninstall --ignore-dependencies $1"
        ;;
    esac
    lock "$1.formula" "$cellar/$1"
    remove_keg "$1"
    autoremove
}

uninstall_cask() {
    find_version "$caskroom" "$1" || fail "Cask '$1' is not installed."
    lock "$1.cask" "$caskroom/$1"
    say "==> Uninstalling Cask $1"
    # shellcheck disable=SC2034 # next_artifact reads it
    find_cask "$1" || artifacts=
    while next_artifact; do
        case $type in
        app) target=/Applications/$placed label=App ;;
        font) target=$home/Library/Fonts/$placed label=Font ;;
        *) continue ;;
        esac
        if [ ! -e "$root$target" ]; then
            case $options in
            *' --force '*) continue ;;
            esac
            fail "It seems the $label source '$target' is not there."
        fi
        say "==> Backing $label '$placed' up to '$caskroom/$1/$version/$source'"
        say "==> Removing $label '$target'"
        rm -rf "${root:?}$target" || fail "Permission denied @ apply2files - $target"
    done
    say "==> Purging files for version $version of Cask $1"
    rm -rf "${root:?}$caskroom/$1"
}

parse_arguments "$@"
[ -n "$names" ] || fail 'Invalid usage: This command requires at least 1 installed formula or cask argument.'
while IFS= read -r asked; do
    [ -n "$asked" ] || continue
    if [ "$kind" = cask ]; then
        uninstall_cask "$asked"
    elif [ -z "$kind" ] && ! find_version "$cellar" "$asked" && find_version "$caskroom" "$asked"; then
        uninstall_cask "$asked"
    else
        uninstall_formula "$asked"
    fi
done <<EOF
$names
EOF
