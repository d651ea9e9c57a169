# shellcheck shell=bash
# What the project needs from outside (on a Mac: Brewfile), and the one way to install what is missing. Sourced by run,
# test, bench/run and .ci/run; says what it does on standard error, and nothing when there is nothing to do.

debian_build_packages=(cmake ninja-build g++ pkg-config qt6-base-dev qt6-image-formats-plugins libplist-dev libqpdf-dev
    libssl-dev fonts-inter fonts-noto-cjk fonts-noto-core openssl ca-certificates zip unzip
    qt6-declarative-dev qt6-declarative-dev-tools fonts-materialdesignicons-webfont python3-fonttools
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-dialogs qml6-module-qtquick-layouts
    qml6-module-qtquick-templates qml6-module-qtquick-window qml6-module-qtqml qml6-module-qtqml-models
    qml6-module-qtqml-workerscript qml6-module-qt-labs-folderlistmodel)
# CMake finds qt6-httpserver-dev only with qt6-websockets-dev beside it, which it does not ask for.
debian_test_packages=(libpoppler-cpp-dev qpdf qt6-httpserver-dev qt6-websockets-dev)
debian_reliability_packages=(faketime jq qpdf time)
debian_check_packages=(clang clang-format clang-tidy libclang-rt-14-dev shellcheck)

# install_packages build|test|check …: installs the packages of those lists that are missing; on a Mac, all of them.
install_packages() {
    local list names=()
    if [ "$(uname -s)" = Darwin ]; then
        install_homebrew_packages
        return
    fi
    for list in "$@"; do
        case $list in
        build) names+=("${debian_build_packages[@]}") ;;
        test) names+=("${debian_test_packages[@]}") ;;
        check) names+=("${debian_check_packages[@]}") ;;
        reliability) names+=("${debian_reliability_packages[@]}") ;;
        esac
    done
    install_debian_packages "${names[@]}"
}

# Looks for the packages by itself: asking Homebrew takes seconds.
install_homebrew_packages() {
    local prefix kind name
    prefix=$(brew --prefix) || {
        echo "Please install Homebrew (https://brew.sh), then start again." >&2
        return 1
    }
    while read -r kind name; do
        [ "$kind" = brew ] && [ -e "$prefix/opt/$name" ] && continue
        [ "$kind" = cask ] && [ -e "$prefix/Caskroom/$name" ] && continue
        brew bundle install --no-upgrade --file=Brewfile </dev/null >&2
        return
    done < <(sed -nE 's/^(brew|cask) "(.*)"$/\1 \2/p' Brewfile)
}

install_debian_packages() {
    local present name missing=() as_root=() log
    command -v dpkg-query >/dev/null || {
        echo "This is neither a Mac nor a Debian system. Please see to these yourself: $*" >&2
        return 0
    }
    present=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    for name in "$@"; do
        case $'\n'$present$'\n' in
        *$'\n'"installed $name"$'\n'*) ;;
        *) missing+=("$name") ;;
        esac
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
        command -v sudo >/dev/null || {
            echo "Please install these packages as root, then start again: ${missing[*]}" >&2
            return 1
        }
    fi
    echo "Installing ${missing[*]} …" >&2
    log=$(mktemp)
    if ! { "${as_root[@]}" apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}"; } </dev/null >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}
