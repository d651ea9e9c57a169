# brew install: formulae with what they need, and casks.
# shellcheck disable=SC2154 # brew itself sets what is used here
. "$root/usr/libexec/simulated-mac/bundle.sh"

# Every download begins with the index of packages.
need_network() {
    resolves formulae.brew.sh && return
    echo 'curl: (6) Could not resolve host: formulae.brew.sh' >&2
    fail "Failed to download https://formulae.brew.sh/api/$1.jws.json!"
}

# The bar of a finished download, which a person at a terminal sees.
progress_bar() {
    [ ! -t 1 ] || printf '######################################################################### 100.0%%\n' >&2
}

# Sets `major` to that of the macOS version.
read_major() {
    major=$(sed -n '/<key>ProductVersion</{n;s/.*<string>\([0-9]*\).*/\1/p;q;}' \
        "$root/System/Library/CoreServices/SystemVersion.plist")
}

bottle_tag() {
    read_major
    case $major in
    13) tag=arm64_ventura ;;
    14) tag=arm64_sonoma ;;
    15) tag=arm64_sequoia ;;
    *) tag=arm64_tahoe ;;
    esac
}

# count_files FOLDER: sets `summary`, as "3 files, 12KB".
count_files() {
    summary="$(find "$1" -type f | wc -l | tr -d ' ') files, $(du -sk "$1" | cut -f 1)KB"
}

# pour NAME REQUESTED: one formula, after what it needs. What it makes appears in the Cellar in one step.
pour() {
    find_formula "$1"
    for dependency in $(printf '%s' "$dependencies" | tr , ' '); do
        if ! find_version "$cellar" "$dependency"; then
            say "==> Installing $1 dependency: $dependency"
            (pour "$dependency" false) || return 1
        fi
    done
    lock "$1.formula" "$cellar/$1"
    keg=$cellar/$1/$stable
    new=$root$prefix/var/homebrew/.pour.$1.$$
    say "==> Fetching $1"
    say "==> Downloading https://ghcr.io/v2/homebrew/core/$1/manifests/$stable"
    say "==> Downloading https://ghcr.io/v2/homebrew/core/$1/blobs/sha256:$(printf '%s' "$1-$stable" | cksum | tr -d ' ')"
    progress_bar
    say "==> Pouring $1--$stable.$tag.bottle.tar.gz"
    rm -rf "$new"
    mkdir -p "$new/$stable/bin" "$new/$stable/share/$1" "$root$cellar" || fail "Permission denied @ dir_s_mkdir - $cellar"
    printf '%s %s\n\n%s\n' "$1" "$stable" "$description" >"$new/$stable/README"
    if [ "$1" = tesseract-lang ]; then
        for language in deu fra jpn kor vie; do
            echo 'stand-in' >"$new/$stable/share/$1/$language.traineddata"
        done
    fi
    for tool in $commands; do
        write_command "$new/$stable/bin/$tool" "$1" "$stable"
    done
    [ ! -d "$library/payload/$1" ] || cp -Rp "$library/payload/$1/." "$new/$stable/"
    [ -z "$commands" ] || chmod 755 "$new/$stable/bin"/*
    as_dependency=true
    [ "$2" = false ] || as_dependency=false
    printf '{"homebrew_version":"4.4.8","used_options":[],"built_as_bottle":true,"poured_from_bottle":true,"installed_as_dependency":%s,"installed_on_request":%s}\n' \
        "$as_dependency" "$2" >"$new/$stable/INSTALL_RECEIPT.json"
    rm -rf "${root:?}$cellar/$1"
    mv "$new" "$root$cellar/$1" || fail "Permission denied @ rb_file_s_rename - $cellar/$1"
    mkdir -p "$root$prefix/opt"
    ln -sfn "../Cellar/$1/$stable" "$root$prefix/opt/$1"
    for tool in $commands; do
        ln -sf "../Cellar/$1/$stable/bin/$tool" "$root$prefix/bin/$tool"
    done
    count_files "$root$keg"
    say "🍺  $keg: $summary"
}

install_formula() {
    if find_version "$cellar" "$1"; then
        receipt=$root$cellar/$1/$version/INSTALL_RECEIPT.json
        if grep -q '"installed_on_request":false' "$receipt" 2>/dev/null; then
            sed 's/"installed_on_request":false/"installed_on_request":true/' "$receipt" >"$receipt.$$" &&
                mv "$receipt.$$" "$receipt"
        fi
        warn "$1 $version is already installed and up-to-date.
To reinstall $version, run:
  brew reinstall $1"
        return
    fi
    need_network formula
    bottle_tag
    pour "$1" true
}

# Ends if the cask at hand cannot be served, and installs the cask that it needs.
meet_needs() {
    case $needs in
    macos:*)
        read_major
        [ "$major" -ge "${needs#macos:}" ] ||
            fail "This cask does not run on macOS versions older than macOS ${needs#macos:}."
        ;;
    cask:*)
        if ! find_version "$caskroom" "${needs#cask:}"; then
            say "==> Installing dependencies: ${needs#cask:}"
            (install_cask "${needs#cask:}") || exit 1
        fi
        ;;
    esac
}

# Puts the artifact of the cask at hand that next_artifact took where it belongs.
place_artifact() {
    case $type in
    app)
        target=/Applications/$placed
        bundle=${source##*/}
        write_bundle "$staged/$source" "${bundle%.app}" "$bundle_identifier" "$stable" "Copyright © 2025 $developer"
        [ ! -d "$library/payload/$name" ] || cp -Rp "$library/payload/$name/." "$staged/$source/"
        sign_bundle "$staged/$source" developer-id "$bundle_identifier" "$team" "$developer" accept
        say "==> Moving App '$bundle' to '$target'"
        mkdir -p "$root/Applications"
        mv "$staged/$source" "$root$target" || cask_fails "Permission denied @ rb_file_s_rename - $target"
        ln -s "../../../../..$target" "$staged/$placed"
        ;;
    font)
        target=$home/Library/Fonts/$placed
        echo 'stand-in for a font' >"$staged/$placed"
        say "==> Moving Font '$placed' to '$target'"
        { mkdir -p "$root$home/Library/Fonts" && mv "$staged/$placed" "$root$target"; } ||
            cask_fails "Permission denied @ rb_file_s_rename - $target"
        ;;
    stage) mkdir -p "$staged/$source/Contents" ;;
    esac
}

# cask_fails TEXT: takes the half-made cask away.
cask_fails() {
    rm -rf "${root:?}$caskroom/$name"
    say "==> Purging files for version $stable of Cask $name"
    fail "$1"
}

install_cask() {
    if ! find_cask "$1"; then
        fail "Cask '$1' is unavailable: No Cask with this name exists."
    fi
    if find_version "$caskroom" "$1"; then
        warn "Not upgrading $1, the latest version is already installed"
        return
    fi
    need_network cask
    meet_needs
    lock "$1.cask" "$caskroom/$1"
    say "==> Downloading $homepage$1-$stable.dmg"
    progress_bar
    say "==> Installing Cask $1"
    all_artifacts=$artifacts
    while next_artifact; do
        target=/Applications/$placed
        if [ "$type" = app ] && [ -e "$root$target" ]; then
            say "==> Purging files for version $stable of Cask $1"
            fail "It seems there is already an App at '$target'."
        fi
    done
    artifacts=$all_artifacts
    staged=$root$caskroom/$1/$stable
    mkdir -p "$staged" "$root$caskroom/$1/.metadata" || fail "Permission denied @ dir_s_mkdir - $caskroom/$1"
    printf '{"default":{"appdir":"/Applications"},"env":{},"explicit":{%s}}\n' "$languages" \
        >"$root$caskroom/$1/.metadata/config.json"
    while next_artifact; do
        place_artifact
    done
    say "🍺  $1 was successfully installed!"
}

parse_arguments "$@"
[ -n "$names" ] || fail 'Invalid usage: This command requires at least 1 formula or cask argument.'
languages=
case $options in
*' --language='*)
    languages=${options#*--language=}
    languages="\"languages\":[\"${languages%% *}\"]"
    ;;
esac
while IFS= read -r asked; do
    [ -n "$asked" ] || continue
    if [ "$kind" = cask ]; then
        install_cask "$asked"
    elif find_formula "$asked"; then
        install_formula "$asked"
    elif [ -z "$kind" ] && find_cask "$asked"; then
        install_cask "$asked"
    else
        warn "No available formula with the name \"$asked\"."
        say '==> Searching for similarly named formulae and casks...'
        fail "No formulae or casks found for $asked."
    fi || exit 1
done <<EOF
$names
EOF
