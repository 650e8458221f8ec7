#!/usr/bin/env bash
# Starts the real program on SDL's drivers that need neither display nor sound card, in folders with and without its
# data, and checks how it ends.
#     start_test.sh FOLDER_OF_THE_PROGRAM FOLDER_OF_THE_PICTURES
set -u
program=$1
pictures=$2
folder=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$folder"' EXIT
export SDL_VIDEODRIVER=dummy SDL_AUDIODRIVER=dummy XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder/run
mkdir -p "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

# new_copy NAME: a folder with the program alone; prints it.
new_copy() {
    mkdir -p "$folder/$1/Dat"
    cp "$program/tervalis" "$folder/$1/"
    echo "$folder/$1"
}

# wait_for_line FILE LINE: up to 20 seconds.
wait_for_line() {
    for _ in $(seq 200); do
        grep -qxF "$2" "$1" 2>/dev/null && return 0
        sleep 0.1
    done
    return 1
}

# expect_error FOLDER TEXT: the program ends by itself with code 0 and that text in its message box.
expect_error() {
    timeout 20 "$1/tervalis" 2>"$1/errors"
    local code=$?
    [ $code -eq 0 ] || fail "$1 ended with $code"
    grep -qF "Error: $2" "$1/errors" || fail "$1 said: $(cat "$1/errors")"
    grep -qxF "CGame::Destroy" "$1/Log.txt" || fail "$1 did not log its end"
}

# start FOLDER: runs the program in the background until its menu has begun.
start() {
    "$1/tervalis" 2>"$1/errors" &
    pid=$!
    wait_for_line "$1/Log.txt" "CSectionMenu::SectionBegin" || fail "$1 did not reach its menu"
}

# start_elsewhere: runs the loose copy until its end, from a folder of the user's.
start_elsewhere() {
    mkdir -p "$folder/elsewhere"
    (cd "$folder/elsewhere" && timeout 20 "$loose/tervalis") >"$loose/second" 2>&1
}

# stop FOLDER SIGNAL: asks the program to close, as the end of a session or of its terminal does; it must end with
# code 0.
stop() {
    kill "-$2" $pid
    wait $pid || fail "$1 ended with $?"
    grep -qxF "CGame::Destroy" "$1/Log.txt" || fail "$1 did not log its end"
}

empty=$(new_copy empty)
expect_error "$empty" "Can not load file"

incomplete=$(new_copy incomplete)
cp -r "$pictures" "$incomplete/Dat/Image"
rm "$incomplete/Dat/Image/stone.jpg"
expect_error "$incomplete" "Can not load file"

damaged=$(new_copy damaged)
cp "$program/Dat/Image.xpf" "$damaged/Dat/"
mkdir "$damaged/Dat/Image"
head -c 300 "$pictures/stone.jpg" >"$damaged/Dat/Image/stone.jpg"
expect_error "$damaged" "Can not load image"

loose=$(new_copy loose)
cp -r "$pictures" "$loose/Dat/Image"
start "$loose"
cp "$loose/Log.txt" "$loose/before.txt"
start_elsewhere || fail "a second copy ended with $?"
[ -s "$loose/second" ] && fail "a second copy said: $(cat "$loose/second")"
cmp -s "$loose/Log.txt" "$loose/before.txt" || fail "a second copy wrote to the log"
stop "$loose" TERM
SDL_VIDEODRIVER=x11 DISPLAY=:nowhere start_elsewhere || fail "without a display it ended with $?"
[ -z "$(ls "$folder/elsewhere")" ] || fail "a copy that did not start wrote where the user was"

packed=$(new_copy 'pack\ed') # a back slash is a letter here
cp "$program/Dat/Image.xpf" "$packed/Dat/"
start "$packed"
stop "$packed" HUP
[ -s "$packed/errors" ] && fail "the program said: $(cat "$packed/errors")"

[ $failures -eq 0 ] && echo "All starts end as they should."
exit $failures
