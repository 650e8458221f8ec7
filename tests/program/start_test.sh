#!/usr/bin/env bash
# Starts the real program on SDL's drivers that need neither display nor sound card, in folders with and without its
# data, and checks how it ends.
#     start_test.sh FOLDER_OF_THE_PROGRAM FOLDER_OF_THE_PICTURES PACK_BUILDER
set -u
program=$1
pictures=$2
builder=$3
folder=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$folder"' EXIT
export SDL_VIDEODRIVER=dummy SDL_AUDIODRIVER=dummy XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder/run
mkdir -m 700 "$XDG_RUNTIME_DIR"

fail() {
    echo "FAILED: $*"
    exit 1
}

# new_copy NAME loose|packed|empty: goes to a folder with the program and its pictures.
new_copy() {
    mkdir -p "$folder/$1/Dat/Image" && cd "$folder/$1" && cp "$program/tervalis" . || exit 1
    case $2 in
    loose) cp -r "$pictures" Dat/ && mv Dat/image/* Dat/Image/ ;;
    packed) cp "$program/Dat/Image.xpf" Dat/ ;;
    esac
}

# expect_error TEXT FILE: the program ends by itself with code 0, that text in its message box and the name of the file
# that is at fault.
expect_error() {
    timeout 60 ./tervalis 2>errors || fail "$PWD ended with $?"
    grep -qF "Error: $1" errors || fail "$PWD said: $(cat errors)"
    grep -qxF "$2: $1" errors || fail "$PWD did not name $2"
    grep -qxF "CGame::Destroy" Log.txt || fail "$PWD did not log its end"
}

# run_until SIGNAL [COMMAND]: from the menu on, the command; then the program is asked to close, as the end of a session
# or of its terminal does, over and over.
run_until() {
    rm -f "$XDG_CONFIG_HOME/Tervalis/settings.toml"
    ./tervalis 2>errors &
    local pid=$!
    until grep -qsxF "CSectionMenu::SectionBegin" Log.txt; do
        kill -0 $pid 2>/dev/null || fail "$PWD did not reach its menu"
        sleep 0.1
    done
    "${2:-true}"
    while kill "-$1" $pid 2>/dev/null; do sleep 0.01; done
    wait $pid || fail "$PWD ended with $?"
    [ -s "$XDG_CONFIG_HOME/Tervalis/settings.toml" ] || fail "$PWD did not store its settings"
    grep -qxF "CGame::Destroy" Log.txt || fail "$PWD did not log its end"
}

# A copy that cannot start, from a folder of the user's, leaves that folder and the other copy's log as they were.
start_elsewhere() {
    cp Log.txt before
    mkdir -p "$folder/elsewhere"
    (cd "$folder/elsewhere" && timeout 60 "$OLDPWD/tervalis" >"$folder/said" 2>&1) || fail "elsewhere it ended with $?"
    [ -z "$(ls "$folder/elsewhere")" ] || fail "a copy that did not start wrote where the user was"
    cmp -s Log.txt before || fail "a second copy wrote to the log"
}

# The pack that the program starts from is the same whenever it is built, and no picture has two names.
check_pack_builder() {
    "$builder" "$pictures" again.xpf && cmp again.xpf Dat/Image.xpf || fail "the same pictures gave another pack"
    mkdir alike && touch alike/a.jpg alike/A.JPG
    ! "$builder" alike again.xpf 2>/dev/null || fail "packed two files that differ only in letter case"
    cmp again.xpf Dat/Image.xpf || fail "a refusal changed the pack"
}

new_copy empty empty
expect_error "Can not load file" 'Dat\Image/MainMenu.jpg'
new_copy damaged packed
head -c 300 "$pictures/stone.jpg" >Dat/Image/stone.jpg # takes precedence over the pack
expect_error "Can not load image" 'Dat\Image/stone.jpg'
new_copy 'pack\ed' packed # a back slash is a letter here
cp -r "$program/Wav" .
run_until HUP
[ ! -s errors ] || fail "the program said: $(cat errors)"
check_pack_builder
new_copy loose loose
run_until TERM start_elsewhere
[ ! -s "$folder/said" ] || fail "a second copy said: $(cat "$folder/said")"
# What SDL loads for a display leaves memory behind, which is none of ours.
ASAN_OPTIONS=detect_leaks=0 SDL_VIDEODRIVER=x11 DISPLAY=:nowhere start_elsewhere
echo "All starts end as they should."
