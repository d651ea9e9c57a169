# brew info --json=v2 --installed: all that is installed, as JSON.
# shellcheck disable=SC2154 # brew itself sets what is used here

parse_arguments "$@"
case $options in
*' --json=v2 '*) ;;
*) fail 'Invalid usage: the simulated brew knows info --json=v2 --installed only.' ;;
esac

# One line for each package: its kind, name, installed version, whether it was asked for, and its languages.
installed() {
    for keg in "$root$cellar"/*/*; do
        [ -d "$keg" ] || continue
        receipt='"installed_on_request":true'
        [ ! -r "$keg/INSTALL_RECEIPT.json" ] || read -r receipt <"$keg/INSTALL_RECEIPT.json"
        request=false
        case $receipt in
        *'"installed_on_request":true'*) request=true ;;
        esac
        version=${keg##*/}
        keg=${keg%/*}
        printf 'formula|%s|%s|%s\n' "${keg##*/}" "$version" "$request"
    done
    for staged in "$root$caskroom"/*; do
        [ -d "$staged" ] || continue
        # Without a folder of a version it is installed, but nobody knows in which.
        find_version "$caskroom" "${staged##*/}"
        printf 'cask|%s|%s|\n' "${staged##*/}" "$version"
    done
}

installed | awk -F '|' -v home="$home" '
function text(value) {
    gsub(/\\/, "\\\\", value)
    gsub(/"/, "\\\"", value)
    return "\"" value "\""
}
function text_or_null(value) {
    return value == "" ? "null" : text(value)
}
function words(list, separator, count, parts, i, result) {
    count = split(list, parts, separator)
    for (i = 1; i <= count; i++)
        result = result (i > 1 ? ", " : "") text(parts[i])
    return "[" result "]"
}
function artifacts(list, identifier, count, parts, i, kind, file, names, result) {
    result = "{\"uninstall\": [{\"quit\": " text(identifier) "}]}"
    if (identifier == "")
        result = ""
    count = split(list, parts, ";")
    for (i = 1; i <= count; i++) {
        kind = substr(parts[i], 1, index(parts[i], ":") - 1)
        file = substr(parts[i], index(parts[i], ":") + 1)
        if (result != "")
            result = result ", "
        if (kind == "stage")
            result = result "{\"stage_only\": [true]}"
        else if (split(file, names, ">") > 1)
            result = result "{\"" kind "\": [" text(names[1]) ", {\"target\": " text(names[2]) "}]}"
        else {
            result = result "{\"" kind "\": [" text(file) "], \"target\": "
            sub(/.*\//, "", file)
            result = result text((kind == "app" ? "/Applications/" : home "/Library/Fonts/") file) "}"
        }
    }
    if (identifier != "")
        result = result ", {\"zap\": [{\"trash\": [" text("~/Library/Preferences/" identifier ".plist") "]}]}"
    return "[" result "]"
}
# Closes the formula whose kegs were read last.
function close_formula() {
    if (name != "")
        formulae = formulae (formulae == "" ? "" : ",") formula "], \"linked_keg\": " text(linked) \
            ", \"pinned\": false, \"outdated\": " (linked == current ? "false" : "true") "}"
    name = ""
}
NR == FNR && !/^#/ { known[$1 "|" $2] = $0 }
NR == FNR { next }
{
    key = $1 "|" $2; installed_version = $3; request = $4
    split("", field)
    if (key in known)
        split(known[key], field, "|")
    stable = field[3] == "" ? installed_version : field[3]
}
$1 == "formula" && $2 != name {
    close_formula()
    name = $2; current = stable
    licence = field[4] == "" ? "null" : field[4]
    formula = "\n    {\"name\": " text($2) ", \"full_name\": " text($2) \
        ", \"tap\": \"homebrew/core\", \"desc\": " text_or_null(field[8]) ", \"license\": " licence \
        ", \"homepage\": " text_or_null(field[7]) ", \"versions\": {\"stable\": " text(stable) \
        ", \"head\": null, \"bottle\": true}, \"dependencies\": " words(field[5], ",") \
        ", \"installed\": ["
    separator = ""
}
$1 == "formula" {
    linked = installed_version
    formula = formula separator "{\"version\": " text(installed_version) \
        ", \"used_options\": [], \"built_as_bottle\": true, \"poured_from_bottle\": true, \"installed_as_dependency\": " \
        (request == "true" ? "false" : "true") ", \"installed_on_request\": " request "}"
    separator = ", "
}
$1 == "cask" {
    casks = casks (casks == "" ? "" : ",") "\n    {\"token\": " text($2) ", \"full_token\": " text($2) \
        ", \"tap\": \"homebrew/cask\", \"name\": [" text(field[10] == "" ? $2 : field[10]) "], \"desc\": " \
        text_or_null(field[11]) ", \"homepage\": " text_or_null(field[9]) ", \"version\": " text(stable) \
        ", \"installed\": " text_or_null(installed_version) ", \"outdated\": " \
        (installed_version == "" || installed_version == stable ? "false" : "true") ", \"artifacts\": " \
        artifacts(field[7], field[4]) ", \"auto_updates\": null}"
}
END {
    close_formula()
    printf "{\n  \"formulae\": [%s%s],\n  \"casks\": [%s%s]\n}\n", \
        formulae, formulae == "" ? "" : "\n  ", casks, casks == "" ? "" : "\n  "
}' "$library/catalogue" -
