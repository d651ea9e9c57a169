# shellcheck shell=bash
# build PRESET [TARGET …]: configures where that was not done yet, and builds what has changed. All words go to standard
# error, and there are none when everything is up to date.

build() {
    local preset=$1 folder=build/$1
    shift
    local generator="$folder/build.ninja"
    if [ ! -f "$generator" ] || [ CMakePresets.json -nt "$generator" ]; then
        echo "Configuring ($preset) …" >&2
        cmake --preset "$preset" >"$folder.log" 2>&1 || {
            cat "$folder.log" >&2
            return 1
        }
    fi
    case $(ninja -C "$folder" -n "$@" 2>/dev/null) in
    *"no work to do"*) ;;
    *)
        echo "Building ($preset) …" >&2
        ninja -C "$folder" "$@" >&2
        ;;
    esac
}
