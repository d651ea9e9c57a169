# brew leaves: the installed formulae that no other installed formula needs.
# shellcheck disable=SC2154 # brew itself sets what is used here

needed=' '
for keg in "$root$cellar"/*; do
    [ -d "$keg" ] || continue
    find_formula "${keg##*/}" || continue
    replace "$dependencies" , ' '
    needed="$needed$replaced "
done
for keg in "$root$cellar"/*; do
    [ -d "$keg" ] || continue
    case $needed in
    *" ${keg##*/} "*) ;;
    *) printf '%s\n' "${keg##*/}" ;;
    esac
done
