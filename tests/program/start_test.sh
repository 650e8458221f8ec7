#!/usr/bin/env bash
# Starts the real program on SDL's drivers that need neither display nor sound card, in folders with and without its
# data, installed and not, and checks how it ends.
#     start_test.sh FOLDER_OF_THE_BUILD FOLDER_OF_THE_PICTURES PACK_BUILDER LIST_OF_INSTALLED_FILES
set -u
program=$1
pictures=$2
builder=$3
installed=$4
log=Log.txt
began=CSectionMenu::SectionBegin
folder=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$folder"' EXIT
export SDL_VIDEODRIVER=dummy SDL_AUDIODRIVER=dummy XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder/run XDG_STATE_HOME=$folder/state
mkdir -m 700 "$XDG_RUNTIME_DIR"

fail() {
    echo "FAILED: $*"
    exit 1
}

# new_copy NAME [FROM TO]: goes to a folder with the program, and with pictures copied there.
new_copy() {
    mkdir -p "$folder/$1/Dat/Image" && cd "$folder/$1" && cp "$program/tervalis" . || exit 1
    [ $# = 1 ] || cp -r "$2" "$3" || exit 1
}

# expect_error TEXT FILE: the program ends by itself with code 0, that text in its message box and the name of the file
# that is at fault.
expect_error() {
    timeout 60 ./tervalis 2>errors || fail "$PWD ended with $?"
    grep -qF "Error: $1" errors || fail "$PWD said: $(cat errors)"
    grep -qxF "$2: $1 (in $PWD)" errors || fail "$PWD did not name $2"
    grep -qxF "CGame::Destroy" "$log" || fail "$PWD did not log its end"
}

# run_until SIGNAL [COMMAND]: once it has begun, the command; then the program is asked to close, as the end of a session
# or of its terminal does, over and over.
run_until() {
    rm -f "$XDG_CONFIG_HOME/Tervalis/settings.toml"
    ./tervalis 2>errors &
    local pid=$!
    until grep -qsxF "$began" "$log"; do
        kill -0 $pid 2>/dev/null || fail "$PWD did not begin"
        sleep 0.1
    done
    "${2:-true}"
    while kill "-$1" $pid 2>/dev/null; do sleep 0.01; done
    wait $pid || fail "$PWD ended with $?"
}

# expect_kept: nothing was said, and the settings and the log's end are stored.
expect_kept() {
    [ ! -s errors ] || fail "$PWD said: $(cat errors)"
    [ -s "$XDG_CONFIG_HOME/Tervalis/settings.toml" ] || fail "$PWD did not store its settings"
    grep -qxF "CGame::Destroy" "$log" || fail "$PWD did not log its end"
}

# A copy that cannot start, from a folder of the user's and in another session, leaves that folder and the other copy's
# log as they were.
start_elsewhere() {
    cp Log.txt before
    mkdir -p "$folder/elsewhere"
    (cd "$folder/elsewhere" && XDG_RUNTIME_DIR=$PWD timeout 60 "$OLDPWD/tervalis" >"$folder/said" 2>&1) || fail "elsewhere it ended with $?"
    [ -z "$(ls "$folder/elsewhere")" ] || fail "a copy that did not start wrote where the user was"
    cmp -s Log.txt before || fail "a second copy wrote to the log"
}

new_copy empty
expect_error "Can not load file" 'Dat\Image/MainMenu.jpg'
new_copy damaged "$program/Dat/Image.xpf" Dat
head -c 300 "$pictures/stone.jpg" >Dat/Image/stone.jpg # takes precedence over the pack
expect_error "Can not load image" 'Dat\Image/stone.jpg'
new_copy 'pack\ed' "$program/Dat/Image.xpf" Dat # a back slash is a letter here
cp -r "$program/Wav" .
run_until HUP
expect_kept
# The pack that the program starts from is the same whenever it is built, and no picture has two names.
"$builder" "$pictures" again.xpf && cmp again.xpf Dat/Image.xpf || fail "the same pictures gave another pack"
mkdir alike && touch alike/a.jpg alike/A.JPG
for bad in alike missing; do
    ! "$builder" $bad again.xpf 2>/dev/null || fail "packed pictures that are $bad"
    cmp again.xpf Dat/Image.xpf || fail "a refusal changed the pack"
done
new_copy loose "$pictures/." Dat/Image
echo >Dat/Image.xpf
run_until TERM start_elsewhere
grep -q 'Can not read pack file' errors && grep -q 'Can not load sound' errors || fail "nobody hears what is missing"
[ ! -s "$folder/said" ] || fail "a second copy said: $(cat "$folder/said")"
# Without a display, told which or left to itself. What SDL loads for one leaves memory behind, which is none of ours.
for driver in x11 ''; do
    (
        export ASAN_OPTIONS=detect_leaks=0 SDL_VIDEODRIVER=$driver
        unset DISPLAY WAYLAND_DISPLAY ${driver:-SDL_VIDEODRIVER}
        start_elsewhere
    ) || exit 1
    grep -v dummy "$folder/said" | grep -q "cannot open the display (tried: .*x11" || fail "no display: $(cat "$folder/said")"
done

# Installed for all users, then moved as a whole: the log goes to the user's folder, even for one who may write to all.
DESTDIR=$folder/stage cmake --install "$program" --prefix /usr >/dev/null || fail "cannot install"
for list in 'cd stage/usr && find ! -type d -printf "%P\n"' "sed 's|^/usr/||' $program/install_manifest.txt"; do
    (cd "$folder" && eval "$list" | LC_ALL=C sort | diff "$installed" -) || fail "other files were installed"
done
mv "$folder/stage/usr" "$folder/moved" && cd "$folder/moved/share" || exit 1
# Known by one name to whoever shows the program: installed_files.txt has it in the files' names.
id=$(basename applications/*.desktop .desktop)
grep -qx "Icon=$id" applications/*.desktop && grep -qx "StartupWMClass=$id" applications/*.desktop &&
    grep -qF "<id>$id</id>" metainfo/*.xml && grep -qF ">$id.desktop</launchable>" metainfo/*.xml ||
    fail "desktop entry and metainfo differ in the program's id"
cd ../bin || exit 1
log=$folder/state/Tervalis/Log.txt
run_until TERM
expect_kept
[ "$(ls)" = $'errors\ntervalis' ] || fail "a log lies among the programs"

# Nothing can be kept: said once each, and played all the same.
mkdir "$folder/full" && touch "$folder/full/Tervalis"
ln -sf /dev/full "$log"
said="$log: Can not write the log"
began="$folder/full/Tervalis/settings.toml: Can not keep the settings"
XDG_CONFIG_HOME=$folder/full log=errors run_until TERM
[ "$(cat errors)" = "$said"$'\n'"$began" ] || fail "where nothing can be kept it said: $(cat errors)"

rm -r ../share "$log"
expect_error "Can not load file" 'Dat\Image/MainMenu.jpg'
grep -q "^Tervalis: Dat/Image.xpf is missing; looked for it in $PWD/ $folder/moved/share/tervalis /" errors ||
    fail "an incomplete installation said: $(cat errors)"
echo "All starts end as they should."
