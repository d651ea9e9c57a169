#!/bin/sh
# The simulated Mac by itself: every tool is called as the program calls it, on Macs in a temporary folder.
# Prints a line for each check that fails, and a count at the end.
set -u

simulated=$(CDPATH='' cd -- "$(dirname -- "$0")/../../simulated-mac" && pwd) || exit 1
temporary=$(mktemp -d) || exit 1
trap 'rm -rf "$temporary"' EXIT
passed=0
failed=0
unset USER

# Blanks and letters beyond ASCII in the host's path must never matter.
mac="$temporary/Máy Mac thử nghiệm"
home=/Users/technician

make_mac() {
    "$simulated/make-mac" "$mac" --fresh --pace 0 "$@" || exit 1
}

# on TOOL ARGUMENTS…: runs a tool of the Mac by its Mac path, as the program does. Sets `status`, `out` and `err`.
on() {
    tool=$1
    shift
    TAVELO_MAC_HOST_ROOT=$mac "$mac$tool" "$@" >"$temporary/out" 2>"$temporary/err"
    status=$?
    out=$(cat "$temporary/out")
    err=$(cat "$temporary/err")
}

brew() { on /opt/homebrew/bin/brew "$@"; }
curl() { on /usr/bin/curl -fL --proto =https --proto-redir =https "$@"; }
hdiutil() { on /usr/bin/hdiutil "$@"; }
codesign() { on /usr/bin/codesign "$@"; }
break_tool() { "$simulated/break-tool" "$mac" "$@"; }
set_download() { "$simulated/set-download" "$mac" "$@"; }
add_app() { "$simulated/add-app" "$mac" "$@"; }

# verify PATH IDENTIFIER TEAM: the check of a vendor's application.
verify() {
    codesign --verify --deep --strict \
        "-R=anchor apple generic and identifier \"$2\" and certificate leaf[subject.OU] = \"$3\"" "$1"
}

# check NAME COMMAND…: counts a check, which holds if the command succeeds.
check() {
    check_name=$1
    shift
    if "$@"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'FAILED: %s\n    status %s, out: %s\n    err: %s\n' "$check_name" "${status-}" "${out-}" "${err-}"
    fi
}

# ended STATUS [OUT-PART [ERR-PART]]: how the last call of `on` ended; any STATUS is "*". A part is a pattern; "" asks for
# silence.
ended() {
    [ "$1" = '*' ] || [ "$status" = "$1" ] || return 1
    if [ $# -gt 1 ]; then
        # shellcheck disable=SC2254 # a pattern is meant
        case $out in $2) ;; *) return 1 ;; esac
    fi
    if [ $# -gt 2 ]; then
        # shellcheck disable=SC2254
        case $err in $3) ;; *) return 1 ;; esac
    fi
}

there() { [ -e "$mac$1" ]; }
gone() { [ ! -e "$mac$1" ] && [ ! -L "$mac$1" ]; }
same() { [ "$1" = "$2" ]; }
mounts() { find "$mac/private/var/simulated-mac/mounts" -type f | wc -l | tr -d ' '; }

# --- Making a Mac -----------------------------------------------------------------------------------------------------

mkdir "$temporary/foreign"
echo precious >"$temporary/foreign/file"
"$simulated/make-mac" "$temporary/foreign" --fresh >/dev/null 2>"$temporary/err"
check 'a folder of somebody else is left alone' same "$?$(cat "$temporary/foreign/file")" 1precious
# A folder of CDPATH that has the same names, and a call that is killed while it clears the old Mac.
mkdir -p "$temporary/elsewhere/relative" "$temporary/elsewhere/simulated-mac" "$temporary/bin"
ln -s "$simulated" "$temporary/simulated-mac"
# shellcheck disable=SC2016 # for the stand-in
printf '#!/bin/sh\ncommand -p find "$@"\nkill -KILL "$PPID"\n' >"$temporary/bin/find"
chmod 755 "$temporary/bin/find"
(
    cd "$temporary" || exit 1
    export CDPATH="$temporary/elsewhere"
    simulated-mac/make-mac relative --without-homebrew &&
        ! PATH=$temporary/bin:$PATH simulated-mac/make-mac relative --fresh &&
        simulated-mac/make-mac relative --fresh --without-homebrew &&
        simulated-mac/add-app relative App
) >/dev/null 2>&1
check 'an exported CDPATH, and a call that was killed' same "$?$(ls "$temporary/elsewhere/relative")" 0
check 'leave a Mac' test -d "$temporary/relative/Applications/App.app"
make_mac --macos 13.6.1 --computer-name 'A & B' --without-homebrew --without-network --without-xcode-tools
"$simulated/make-mac" "$mac" >/dev/null 2>&1
check 'a Mac is replaced only if told so' same $? 1
check 'the version is the one asked for' grep -q '<string>13.6.1</string>' \
    "$mac/System/Library/CoreServices/SystemVersion.plist"
check 'the computer name is escaped' grep -q 'A &amp; B' \
    "$mac/Library/Preferences/SystemConfiguration/preferences.plist"
check 'no Homebrew' gone /opt/homebrew
on /usr/bin/xcode-select -p
check 'no Xcode tools' ended 2 '' 'xcode-select: error: unable to get active developer directory*'
curl -o "$home/f" https://telegram.org/dl/desktop/mac
check 'no network' ended 6 '' '*curl: (6) Could not resolve host: telegram.org'

make_mac
check 'links inside a Mac are relative' same "$(find "$mac" -type l -lname '/*')" ''
while read -r tool rest; do
    # shellcheck disable=SC2086 # words
    "$simulated/$tool" "$mac" $rest >/dev/null 2>&1
    check "refused: $tool $rest" same $? 2
done <<EOF
add-app X --path /../x.app
add-app X --put $0=Contents/../../../x
add-app .. --identifier x
add-receipt ../../x
add-receipt a/b
make-image $temporary/x.dmg --folder ../x /Applications/Safari.app
make-image $temporary/x.dmg /../etc
set-download https://../x --status 500
set-download https://brew.sh/x/.. --status 500
break-tool .. --silent
EOF
"$simulated/add-app" "$mac" Safari --put /nowhere=x 2>/dev/null
check 'a missing file is found out before anything is removed' there /Applications/Safari.app/Contents/PkgInfo
on /usr/bin/ditto /../private/etc/hosts /tmp/../../tmp/absolute
check 'nothing lies above the root' there /tmp/absolute
on /usr/bin/ditto etc/hosts tmp/relative
check 'outside of the Mac, a relative path counts from its root' there /tmp/relative
(
    cd "$mac/Users" || exit 1
    on /usr/bin/ditto ../../../../etc/hosts relative
)
check 'in it, from the current folder' there /Users/relative
on /usr/bin/xcode-select -p
check 'Xcode tools' ended 0 /Library/Developer/CommandLineTools ''

# --- Homebrew ---------------------------------------------------------------------------------------------------------

brew install ocrmypdf
check 'a formula installs what it needs' ended 0 '*==> Installing ocrmypdf dependency: tesseract*==> Pouring ocrmypdf*🍺  /opt/homebrew/Cellar/ocrmypdf/*: * files, *'
check 'its command works' test -x "$mac/opt/homebrew/bin/ocrmypdf"
brew install tesseract-lang
brew leaves
check 'what is needed by another is no leaf' ended 0 "ocrmypdf
tesseract-lang"
brew list --formula -1
check 'but it is listed' ended 0 "*tesseract
tesseract-lang"
brew list --formula ocrmypdf
check 'the files of a formula' ended 0 '*/opt/homebrew/Cellar/ocrmypdf/*/bin/ocrmypdf*' ''
brew install ocrmypdf
check 'twice is a warning' ended 0 '' 'Warning: ocrmypdf * is already installed and up-to-date.*'
brew uninstall tesseract
check 'a needed formula stays' ended 1 '' 'Error: Refusing to uninstall */tesseract/*required by ocrmypdf, tesseract-lang*'
brew uninstall ocrmypdf
check 'an uninstall leaves no command and nothing unneeded' gone /opt/homebrew/bin/ocrmypdf
brew list --formula -1
check 'dependencies of none go too' ended 0 "leptonica
libtiff
tesseract
tesseract-lang"
for missing in 'uninstall nope' 'list --formula nope'; do
    # shellcheck disable=SC2086 # two words
    brew $missing
    check "brew $missing" ended 1 '' 'Error: No such keg: /opt/homebrew/Cellar/nope'
done
brew list --formula ../../../Applications
check 'no path is a name' ended 1 '' 'Error: No such keg: /opt/homebrew/Cellar/../../../Applications'
for missing in 'uninstall --cask nope' 'list --cask nope'; do
    # shellcheck disable=SC2086
    brew $missing
    check "brew $missing" ended 1 '' "Error: Cask 'nope' is not installed."
done
brew install nope
check 'an unknown formula' ended 1 '*' 'Warning: No available formula with the name "nope".*Error: No formulae or casks found for nope.'
brew install --cask nope
check 'an unknown cask' ended 1 '' "Error: Cask 'nope' is unavailable: No Cask with this name exists."

brew install --cask --language=vi libreoffice-language-pack
check 'a cask brings the cask that it needs' there /Applications/LibreOffice.app/Contents/MacOS/unopkg
check 'and its dictionary' there /Applications/LibreOffice.app/Contents/Resources/extensions/dict-vi/vi_VN.dic
brew install --cask font-noto-sans
check 'a font lands in the home' there "$home/Library/Fonts/NotoSans[wdth,wght].ttf"
brew install --cask skim
check 'a cask tells what it moves' ended 0 "*==> Moving App 'Skim.app' to '/Applications/Skim.app'*🍺  skim was successfully installed!"
codesign --verify --strict /Applications/Skim.app
check 'its application is signed' ended 0 '' ''
brew install --cask skim
check 'a cask twice is a warning' ended 0 '' 'Warning: Not upgrading skim, the latest version is already installed'
brew list --cask -1
check 'the casks' ended 0 "font-noto-sans
libreoffice
libreoffice-language-pack
skim" ''
brew info --json=v2 --installed
check 'info names formulae, licences and the artifacts of casks' ended 0 '{*"name": "tesseract-lang"*"license": "Apache-2.0"*"token": "skim"*"installed": "1.7.6"*{"app": \["Skim.app"\], "target": "/Applications/Skim.app"}*}' ''
if command -v python3 >/dev/null; then
    check 'info is JSON' python3 -c 'import json, sys; json.load(open(sys.argv[1]))' "$temporary/out"
fi
brew uninstall --cask skim font-noto-sans
check 'a cask goes whole' gone /Applications/Skim.app
check 'a font goes too' gone "$home/Library/Fonts/NotoSans[wdth,wght].ttf"
check 'and out of the Caskroom' gone /opt/homebrew/Caskroom/skim
add_app Skim
brew install --cask skim
check 'an application in the way stays' ended 1 '*' "Error: It seems there is already an App at '/Applications/Skim.app'."
check 'and no cask is recorded' gone /opt/homebrew/Caskroom/skim
brew install --cask keka
rm -rf "$mac/Applications/Keka.app"
brew uninstall --cask keka
check 'an application dragged away' ended 1 '*' "Error: It seems the App source '/Applications/Keka.app' is not there."
brew frobnicate
check 'an unknown command' ended 1 '' 'Error: Unknown command: brew frobnicate'

# Two at once: both end well, or one of them says that the other holds the lock; nothing half is left.
for name in vlc gimp; do
    TAVELO_MAC_HOST_ROOT=$mac "$mac/opt/homebrew/bin/brew" install --cask "$name" >/dev/null 2>&1 &
    TAVELO_MAC_HOST_ROOT=$mac "$mac/opt/homebrew/bin/brew" install p7zip >/dev/null 2>&1 &
done
wait
brew list --versions
check 'calls at the same time' ended 0 '*p7zip 17.06*gimp *vlc *'
check 'whose command is whole' grep -q 'begin 7z' "$mac/opt/homebrew/bin/7z"
check 'no lock is left' same "$(ls -A "$mac/opt/homebrew/var/homebrew/locks")" ''
ln -s 999999999 "$mac/opt/homebrew/var/homebrew/locks/tree.formula.lock"
brew install tree
check 'the lock of a killed call' ended 0
rm -r "$mac/opt/homebrew/var/homebrew/locks"
: >"$mac/opt/homebrew/var/homebrew/locks"
brew uninstall tree
check 'no lock can be made' ended 1 '*' 'Error: File exists @ dir_s_mkdir - /opt/homebrew/var/homebrew/locks'
rm "$mac/opt/homebrew/var/homebrew/locks"
mkdir -p "$mac/opt/homebrew/var/homebrew/locks/tree.formula.lock"
brew uninstall tree
check 'a lock that is none' ended 1 '*' 'Error: Is a directory @ rb_sysopen - *'

# --- Downloads and disk images ----------------------------------------------------------------------------------------

dmg=$home/Library/Caches/Slack.dmg
curl --max-redirs 5 --retry 2 --connect-timeout 20 --write-out '%{url_effective}' -o "$dmg" \
    https://slack.com/ssb/download-osx-universal
check 'curl follows the vendor and tells where it ended' ended 0 'https://downloads.slack-edge.com/*.dmg' '*% Total*'
for row in \
    'http|1|http://slack.com/x|Protocol "http" disabled' \
    'unknown name|6|https://nowhere.example/x|Could not resolve host: nowhere.example' \
    'nothing served|22|https://raw.githubusercontent.com/LibreOffice/x|The requested URL returned error: 404' \
    'redirect to http|1|https://brew.sh/to-http|Protocol "http" disabled in redirect' \
    'too many redirects|47|https://brew.sh/loop|Maximum (3) redirects followed' \
    'failing server|22|https://brew.sh/busy|The requested URL returned error: 503'; do
    set_download https://brew.sh/to-http --redirect http://brew.sh/x
    set_download https://brew.sh/loop --redirect /loop
    set_download https://brew.sh/busy --status 503
    IFS='|' read -r name wanted url text <<EOF
$row
EOF
    curl --max-redirs 3 --retry 2 --write-out '%{url_effective}' -o "$home/none" "$url"
    check "curl: $name" ended "$wanted" 'http*' "*curl: ($wanted) $text"
    check "curl: $name leaves no file" gone "$home/none"
done
curl -o /nowhere/at/all https://slack.com/ssb/download-osx-universal
check 'curl cannot write' ended 23 '' '*curl: (23) *'

point=$home/Library/Caches/mounts/slack
hdiutil attach "$dmg" -nobrowse -readonly -mountpoint "$point"
check 'an image mounts' ended 0 "*/dev/disk4*Apple_HFS*$point" ''
check 'with its application' there "$point/Slack.app/Contents/Info.plist"
check 'and a link to Applications that leads there' there "$point/Applications/LibreOffice.app"
verify "$point/Slack.app" com.tinyspeck.slackmacgap BQR82RBBHL
check 'a genuine application' ended 0 '' ''
verify "$point/Slack.app" com.tinyspeck.slackmacgap BQR82RBBH
check 'of another team' ended 3 '' 'test-requirement: code failed to satisfy specified code requirement(s)'
verify "$point/Slack.app" com.tinyspeck.slackmacga BQR82RBBHL
check 'of another identifier' ended 3 '' 'test-requirement: *'
on /usr/bin/ditto "$point/Slack.app" /Applications/Slack.app
check 'ditto' ended 0 '' ''
verify /Applications/Slack.app com.tinyspeck.slackmacgap BQR82RBBHL
check 'the copy is genuine too' ended 0 '' ''
break_tool ditto --damage
on /usr/bin/ditto "$point/Slack.app" /Applications/Damaged.app
check 'a damaging ditto claims success' ended 0
codesign --verify --strict /Applications/Damaged.app
check 'the damage shows' ended 1 '' '/Applications/Damaged.app: a sealed resource is missing or invalid'
rm "$mac/Applications/Slack.app/Contents/PkgInfo"
codesign --verify --strict /Applications/Slack.app
check 'so does a file that is missing' ended 1
break_tool hdiutil --when detach --status 16
hdiutil detach "$point" -quiet
check 'a broken detach' ended 16
check 'leaves the mount' same "$(mounts)" 1
break_tool hdiutil --mend
hdiutil detach "$point" -quiet
check 'a detach' ended 0 '' ''
check 'empties the mount point and forgets the mount' same "$(ls -A "$mac$point")$(mounts)" 0
hdiutil detach "$point"
check 'a second one' ended 1 '' 'hdiutil: detach failed - No such file or directory'
break_tool curl --damage
curl -o "$dmg" https://slack.com/ssb/download-osx-universal
hdiutil attach "$dmg" -nobrowse -mountpoint "$point"
check 'a damaged image' ended 1 '' 'hdiutil: attach failed - image not recognized'
check 'mounts nothing' same "$(mounts)" 0
break_tool curl --mend
on /usr/bin/ditto /nowhere.app /Applications/X.app
break_tool ditto --mend
on /usr/bin/ditto /nowhere.app /Applications/X.app
check 'nothing to copy' ended 1 '' "ditto: Cannot get the real path for source '/nowhere.app'"

# An image and a ZIP of one's own, served in the vendor's place.
add_app Other --path /private/tmp/Other.app --identifier org.other --team OTHERTEAM1
for file in other.dmg 'khác.zip'; do
    "$simulated/make-image" "$mac" "$temporary/$file" --folder Sub/Folder /private/tmp/Other.app
done
set_download https://slack.com/ssb/download-osx-universal --file "$temporary/other.dmg"
curl -o "$dmg" https://slack.com/ssb/download-osx-universal
hdiutil attach "$dmg" -mountpoint "$point"
check 'an image of a nested application' there "$point/Sub/Folder/Other.app"
hdiutil detach "$point"
cp "$temporary/khác.zip" "$mac$home/khác.zip"
on /usr/bin/unzip -q "$home/khác.zip" -d "$home/Tải về"
codesign --verify --strict "$home/Tải về/Sub/Folder/Other.app"
check 'a ZIP of it' ended 0 '' ''
on /usr/bin/unzip -q "$home/none.zip" -d "$home/x"
check 'unzip speaks of Mac paths' ended 9 '' "unzip:  cannot find or open $home/none.zip*"

# --- Signatures -------------------------------------------------------------------------------------------------------

# Each row: kind, whether `codesign --verify` holds, spctl's status, and a part of the report.
for row in \
    'developer-id|0|0|*Authority=Developer ID Application: Muster & Söhne (ABCDE12345)*TeamIdentifier=ABCDE12345*' \
    'app-store|0|0|*Authority=Apple Mac OS Application Signing*TeamIdentifier=ABCDE12345*' \
    'apple|0|0|*Authority=Software Signing*TeamIdentifier=not set*' \
    'adhoc|0|3|*Signature=adhoc*TeamIdentifier=not set*' \
    'unsigned|1|3|/Applications/Sub/App.app: code object is not signed at all' \
    'invalid|1|1|*TeamIdentifier=ABCDE12345*'; do
    IFS='|' read -r kind valid assessed report <<EOF
$row
EOF
    add_app App --path /Applications/Sub/App.app --signature "$kind" --team ABCDE12345 --developer 'Muster & Söhne' \
        --identifier org.app --copyright '© Muster & Söhne'
    codesign --verify --strict /Applications/Sub/App.app
    check "$kind: codesign --verify" ended "$valid"
    on /usr/sbin/spctl --assess --type execute /Applications/Sub/App.app
    check "$kind: spctl" ended "$assessed" ''
    codesign -dv --verbose=4 /Applications/Sub/App.app
    wanted=0
    [ "$kind" != unsigned ] || wanted=1
    check "$kind: report" ended "$wanted" '' "$report"
    verify /Applications/Sub/App.app org.app ABCDE12345
    check "$kind: only a developer's meets the requirement" same "$(test "$status" = 0 && echo yes)" \
        "$(test "$kind" = developer-id && echo yes)"
done
add_app App
ln -s /etc "$mac/Applications/App.app/Contents/Resources/link"
codesign --verify --strict /Applications/App.app
check 'links are sealed too' ended 1 '' '*: a sealed resource is missing or invalid'
add_app App --gatekeeper reject
on /usr/sbin/spctl --assess --type execute /Applications/App.app
check 'Gatekeeper says no' ended 3 '' '/Applications/App.app: rejected'

# --- Default applications, open, packages -----------------------------------------------------------------------------

brew install duti
brew install --cask onlyoffice
duti() { on /opt/homebrew/bin/duti "$@"; }
duti -x xlsx
check 'no default' ended 1 ''
duti -x docx
check 'a default of macOS' ended 0 'TextEdit
/System/Applications/TextEdit.app
com.apple.TextEdit'
duti -s asc.onlyoffice.ONLYOFFICE docx all
check 'a default is set' ended 0 '' ''
duti -x docx
check 'and read' ended 0 'ONLYOFFICE
/Applications/ONLYOFFICE.app
asc.onlyoffice.ONLYOFFICE'
duti -r asc.onlyoffice.ONLYOFFICE docx all
duti -x docx
check 'and taken back' ended 0 'TextEdit*'
duti -s no.such.app docx all
check 'an application that is not there' ended 1 '' 'failed to set no.such.app*'

on /usr/bin/open '/Applications/ONLYOFFICE.app'
on /usr/bin/open -a 'Disk Utility'
on /usr/bin/open x-apple.systempreferences:com.apple.Keyboard-Settings.extension
on /usr/bin/open https://chat.zalo.me
check 'open' ended 0 '' ''
check 'what was opened is kept' same "$(cat "$mac/private/var/simulated-mac/opened")" '/Applications/ONLYOFFICE.app
/System/Applications/Utilities/Disk Utility.app
x-apple.systempreferences:com.apple.Keyboard-Settings.extension
https://chat.zalo.me'
on /usr/bin/open '/none.app'
check 'open nothing' ended 1 '' 'The file /none.app does not exist.'
# shellcheck disable=SC2088 # it is to stand as it is
on /usr/bin/open '~/Applications/Slack.app'
check 'open expands no tilde' ended 1 '' 'The file *~/Applications/Slack.app does not exist.'
on /usr/bin/open -a Nobody
check 'open nobody' ended 1 '' "Unable to find application named 'Nobody'"

"$simulated/add-receipt" "$mac" org.example.tool --version 2.5
on /usr/sbin/pkgutil --pkgs
check 'receipts' ended 0 '*com.apple.pkg.CLTools_Executables*org.example.tool*' ''
on /usr/sbin/pkgutil --pkg-info org.example.tool
check 'a receipt' ended 0 'package-id: org.example.tool
version: 2.5
*' ''
on /usr/sbin/pkgutil --pkg-info none
check 'no receipt' ended 1 '' "No receipt for 'none' found at '/'."
on /usr/sbin/system_profiler SPHardwareDataType -json
check 'hardware' ended 0 '*"machine_model" : "Mac14,2"*' ''

# --- Extensions of LibreOffice ----------------------------------------------------------------------------------------

unopkg() { on /Applications/LibreOffice.app/Contents/MacOS/unopkg "$@"; }
staging=$mac$home/vi
mkdir -p "$staging/META-INF"
echo '<manifest/>' >"$staging/META-INF/manifest.xml"
echo từ >"$staging/vi_VN.dic"
oxt=$home/vietnamese-dictionaries.oxt
(
    cd "$staging" || exit 1
    on /usr/bin/zip -qr "$oxt" .
    exit "$status"
)
check 'zip packs the current folder' same $? 0
break_tool unopkg --status 0 --silent
unopkg add --force --suppress-license "$oxt"
installed="$mac$home/Library/Application Support/LibreOffice/4/user/uno_packages"
check 'an unopkg that does nothing' same "$status$(find "$installed" 2>/dev/null)" 0
break_tool unopkg --mend
unopkg add --force --suppress-license "$oxt"
unopkg add --force --suppress-license "$oxt"
check 'unopkg adds, and replaces' same "$status$(find "$installed" -name vi_VN.dic | wc -l | tr -d ' ')" 01
unopkg list
check 'unopkg lists' ended 0 '*vietnamese-dictionaries.oxt*'
echo rubbish >"$mac$home/bad.oxt"
unopkg add --force --suppress-license "$home/bad.oxt"
check 'unopkg refuses rubbish' ended 1 '' 'ERROR: *unopkg failed.'
make_mac --libreoffice-without-dictionary
brew install --cask libreoffice
check 'LibreOffice without its dictionary' gone /Applications/LibreOffice.app/Contents/Resources/extensions/dict-vi

# --- Switches and the record of calls ---------------------------------------------------------------------------------

break_tool brew --when install --when vlc --status 7 --message 'out of order'
brew install --cask vlc
check 'a broken call' ended 7 '' 'out of order'
brew list --cask vlc
check 'one word of two does not break it' ended 1 '' "Error: Cask 'vlc'*"
break_tool brew --flood 200000
brew --prefix
check 'a flood on both streams, then the work' same "$status/$((${#out} > 200000))/$((${#err} > 199000))" 0/1/1
break_tool brew --signal KILL
brew --prefix
check 'a tool that is killed' ended 137 ''
break_tool brew --mend
calls=$mac/private/var/log/simulated-mac/calls.log
: >"$calls"
brew list --formula -1
brew 'two
lines' two lines '' "it's"
check 'one line for each call' same "$(cat "$calls")" "brew list --formula -1
brew 'two lines' two lines '' 'it'\\''s'"
cp "$mac/private/etc/hosts" "$temporary/hosts"
: >"$mac/private/etc/hosts"
brew install p7zip
check 'brew needs the network' ended 1 '' 'curl: (6) Could not resolve host: formulae.brew.sh*Error: *'

# --- A population -----------------------------------------------------------------------------------------------------

make_mac --without-homebrew
"$simulated/populate" "$mac"
check 'a population without Homebrew' there /Applications/Astrolabe.app
make_mac
mkdir "$temporary/receipts"
echo genuine >"$temporary/receipts/verified.receipt"
echo team >"$temporary/receipts/profile.cms"
"$simulated/populate" "$mac" --receipts "$temporary/receipts" --parallels bad
cat "$mac/Applications/Store Verified.app/Contents/_MASReceipt/receipt" \
    "$mac/Applications/Provisioned.app/Contents/embedded.provisionprofile" >"$temporary/out"
check 'receipts and a profile are copied' same "$(cat "$temporary/out")" 'genuine
team'
"$simulated/populate" "$mac" 2>/dev/null
check 'a Mac is populated once' same $? 1
for row in 'Astrolabe|0|*TeamIdentifier=ASTRO12345*' 'Brokenseal|1|*' 'Barewood|1|*not signed at all' \
    'Homespun|0|*Signature=adhoc*' 'Hollow|1|*: bundle format unrecognized, invalid, or unsuitable'; do
    IFS='|' read -r name valid report <<EOF
$row
EOF
    codesign --verify --strict "/Applications/$name.app"
    check "$name: codesign --verify" ended "$valid"
    codesign -dv --verbose=4 "/Applications/$name.app"
    check "$name: report" ended '*' '' "$report"
done
on /usr/sbin/pkgutil --pkgs
check 'receipts with blanks around them' ended 0 '  vn.leading.blanks*vn.trailing.blanks ?*' ''
on /usr/sbin/pkgutil --pkg-info vn.leading.blanks
check 'are found without them' ended 0 '*version: 1.1*' ''
brew list --versions
check 'all versions, and none' ended 0 '*two-versions 1.0 1.1
*
ghostwriter
*' ''
brew leaves
check 'leaves' ended 0 '*tesseract-lang
two-versions*' ''
brew info --json=v2 --installed
for part in '"license": "Proprietary"' '"license": null' '"license": {"any_of":' \
    '{"app": \["Build/Name.app", {"target": "Renamed.app"}\]}' '"version": "2.2", "installed": null' \
    '"installed": "1.9", "outdated": true' '"installed": \[{"version": "1.0"*{"version": "1.1"*"linked_keg": "1.1"'; do
    check "info: $part" ended 0 "*$part*" ''
done
if command -v python3 >/dev/null; then
    check 'info is JSON still' python3 -c 'import json, sys; json.load(open(sys.argv[1]))' "$temporary/out"
    check 'a binary property list' same "$(python3 -c 'import plistlib, sys; print(*plistlib.load(open(sys.argv[1], "rb")))' \
        "$mac$home/Library/Preferences/com.bitwise.Bitwise.plist")" 'LicenseKey Trial_Product.Key AgreementLicenseKey Theme'
    check 'a text in UTF-16' same "$(python3 -c 'import sys; print(open(sys.argv[1], encoding="utf-16").read().split()[-1])' \
        "$mac/Applications/Bản địa.app/Contents/Resources/vi.lproj/InfoPlist.strings")" 'lưu.";'
fi
brew uninstall --cask renamer
check 'a renamed application goes' gone /Applications/Renamed.app
brew install --cask renamer
check 'and comes' ended 0 "*==> Moving App 'Name.app' to '/Applications/Renamed.app'*"
check 'to its own place' there /opt/homebrew/Caskroom/renamer/1.4/Renamed.app/Contents/Info.plist

printf '%s passed, %s failed\n' "$passed" "$failed"
[ "$failed" = 0 ]
