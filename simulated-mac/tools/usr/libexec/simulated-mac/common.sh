# What every simulated tool begins with: where the Mac lies, whose home it is, how a path of the Mac becomes one of
# the host, the record of calls, and the switches that break a tool on purpose.

case $TAVELO_MAC_HOST_ROOT in
/*) root=${TAVELO_MAC_HOST_ROOT%/} ;;
*)
    echo "simulated Mac: TAVELO_MAC_HOST_ROOT is not an absolute path: $TAVELO_MAC_HOST_ROOT" >&2
    exit 1
    ;;
esac
# shellcheck disable=SC2034 # the tools read it
home=/Users/${USER:-technician}
state=$root/private/var/simulated-mac
newline='
'

# Goes into the Mac, unless the current folder lies there already, and sets `current` to its Mac path ("" for the root).
# Both names of a folder count: the one that was used, and the one without symbolic links.
enter_mac() {
    case $PWD/ in
    "$root"/*)
        current=${PWD#"$root"}
        return
        ;;
    esac
    cd -P . 2>/dev/null || :
    current=$PWD
    cd -P "$root" || exit 1
    case $current/ in
    "$PWD"/*)
        below=${current#"$PWD"}
        cd "$current" || exit 1
        current=$below
        ;;
    *) current= ;;
    esac
}
enter_mac

# Sets `mapped` to the host's name of a path. A relative one counts from the current folder, and stays as it is. As on a
# Mac, ".." leads nowhere above the root.
map() {
    case $1 in
    /*) mapped=$root$1 map_rest=$1 ;;
    *) mapped=$1 map_rest=$current/$1 ;;
    esac
    case /$1/ in
    */../*) ;;
    *) return ;;
    esac
    mapped=$root
    while [ -n "$map_rest" ]; do
        component=${map_rest%%/*}
        map_rest=${map_rest#"$component"}
        map_rest=${map_rest#/}
        case $component in
        '' | .) ;;
        ..) [ "$mapped" = "$root" ] || mapped=${mapped%/*} ;;
        *) mapped=$mapped/$component ;;
        esac
    done
}

# Sets `replaced` to the text $1 with every $2 turned into $3.
replace() {
    replaced=
    replace_rest=$1
    while :; do
        case $replace_rest in
        *"$2"*)
            replaced=$replaced${replace_rest%%"$2"*}$3
            replace_rest=${replace_rest#*"$2"}
            ;;
        *) break ;;
        esac
    done
    replaced=$replaced$replace_rest
}

# True if the Mac can resolve the host name $1.
resolves() {
    while read -r address names; do
        case "$address $names " in
        '#'*) ;;
        *" $1 "*) return 0 ;;
        esac
    done <"$root/etc/hosts"
    return 1
}

# shellcheck disable=SC2034 # brew reads it
# Reads the pause between two printed lines, in seconds, into `pace`.
read_pace() {
    pace=0
    [ ! -r "$state/pace" ] || read -r pace <"$state/pace"
}

# begin TOOL ARGUMENTS…: to be called first. Records the call as one line, and breaks it if a switch says so. An argument
# that holds blanks or quotes, or nothing, is written as the shell quotes it; a newline in it becomes a blank.
# Afterwards `damaged` is yes where the tool is to spoil its own result.
begin() {
    call=
    for word; do
        case $word in
        '' | *[[:space:]\']*)
            replace "$word" "$newline" ' '
            replace "$replaced" "'" "'\\''"
            word="'$replaced'"
            ;;
        esac
        call="$call $word"
    done
    { printf '%s\n' "${call# }" >>"$root/private/var/log/simulated-mac/calls.log"; } 2>/dev/null
    damaged=no
    if [ -e "$state/broken/$1" ]; then
        break_call "$@"
    fi
}

# Does what the switch file of the tool $1 says, if the arguments hold all the words that it names.
break_call() {
    tool=$1
    shift
    status='' delay='' flood='' message='' silent='' signal='' damage=no
    while IFS= read -r line; do
        value=${line#*=}
        case $line in
        when=*)
            found=no
            for word; do
                [ "$word" != "$value" ] || found=yes
            done
            [ "$found" = yes ] || return 0
            ;;
        status=*) status=$value ;;
        delay=*) delay=$value ;;
        flood=*) flood=$value ;;
        message=*) message=$value ;;
        signal=*) signal=$value ;;
        silent=*) silent=$value ;;
        damage=*) damage=$value ;;
        esac
    done <"$state/broken/$tool"
    # shellcheck disable=SC2034 # the tools read it
    damaged=$damage
    [ -z "$delay" ] || sleep "$delay"
    if [ -n "$flood" ]; then
        yes "$tool: a line of the flood" | head -c "$flood"
        yes "$tool: a line of the flood" | head -c "$flood" >&2
    fi
    if [ -z "$message" ] && [ -z "$silent" ] && [ "${status:-0}" != 0 ]; then
        message="$tool: broken on purpose, status $status"
    fi
    [ -z "$message" ] || printf '%s\n' "$message" >&2
    [ -z "$signal" ] || kill -s "$signal" $$
    [ -z "$status" ] || exit "$status"
}

# run_host_tool TOOL ARGUMENTS…: the host's program of that name, with every absolute path among the arguments mapped.
# The Mac's own paths stand in what it says on standard error. Ends with its status.
run_host_tool() {
    tool=$1
    shift
    for argument; do
        shift
        map "$argument"
        set -- "$@" "$mapped"
    done
    # A file name is UTF-8 on a Mac, whatever the host's locale.
    { errors=$(LC_ALL=C.UTF-8 command "$tool" "$@" 2>&1 >&3 3>&-); } 3>&1
    status=$?
    replace "$errors" "$root/" /
    [ -z "$replaced" ] || printf '%s\n' "$replaced" >&2
    exit "$status"
}
