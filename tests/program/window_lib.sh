# shellcheck shell=bash disable=SC2034 # names for the scripts that source this
# Sourced by the tests that drive the real program with real keys and mouse: a virtual screen with a window manager,
# the program on it, its picture and its files.
#     ..._test.sh FOLDER_OF_THE_PROGRAM FOLDER_OF_THE_PICTURES
# Areas are WIDTHxHEIGHT+X+Y and positions X Y in the game's own 640 x 480 picture, in whichever mode it is shown.
set -u
build=$1
pictures=$2
folder=$(mktemp -d)
program=$folder/program
log=$program/Log.txt
export HOME=$folder/home XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder/run SDL_AUDIODRIVER=dummy
export PATH=$folder/bin:$PATH
export DBUS_SESSION_BUS_ADDRESS=disabled: # not the session of whoever runs the test
# Libraries that SDL loads for a display and unloads again leave memory behind. The starts without one look for leaks.
export ASAN_OPTIONS=detect_leaks=0
unset WAYLAND_DISPLAY SDL_VIDEODRIVER
settings=$XDG_CONFIG_HOME/Tervalis/settings.toml
mkdir -p "$folder/bin" "$XDG_CONFIG_HOME/Tervalis" "$XDG_RUNTIME_DIR" "$program"
chmod 700 "$XDG_RUNTIME_DIR"
cp -r "$build/tervalis" "$build/Dat" "$build/Wav" "$build/docs" "$program/"

PATIENCE=30 # seconds until what must happen has not happened
TOLERANCE=0.02 # of 1, the mean difference of pictures: the screen's fewer colours, some waves, small writing
WHOLE=640x480+0+0
POND=480x480+160+0
PANEL=160x90+240+195 # where the paused and the confirmation panel show
HELP=500x390+70+45
RANKING=320x310+160+85

# shellcheck disable=SC2046 # lists of numbers
cleanup() {
    kill $(jobs -rp) 2>/dev/null
    for _ in $(seq 30); do
        [ -n "$(jobs -rp)" ] || break
        sleep 0.1
    done
    kill -KILL $(jobs -rp) 2>/dev/null
    rm -rf "$folder"
}
trap cleanup EXIT

# fail WHAT: ends the test, leaving the screen as it was then.
fail() {
    echo "FAILED: $*"
    import -silent -window root "$(basename "$0" .sh)_failure.png" && echo "The screen: $PWD/$(basename "$0" .sh)_failure.png"
    sed 's/^/    Log: /' "$log"
    sed 's/^/    said: /' "$folder/errors"
    exit 1
}

step() { echo "$(date +%T) $*"; }

# await WHAT COMMAND...: until the command succeeds.
await() {
    local what=$1 end=$((SECONDS + PATIENCE))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || fail "not within $PATIENCE seconds: $what"
        sleep 0.05
    done
}

# never WHAT COMMAND...: the command does not succeed for about a second.
never() {
    local what=$1
    shift
    for _ in 1 2 3 4 5; do
        "$@" && fail "$what"
        sleep 0.2
    done
}

# ---- The screen and the program ----

# start_screen WIDTH HEIGHT
start_screen() {
    screenWidth=$1
    screenHeight=$2
    Xvfb -displayfd 7 -screen 0 "$1x$2x24" -nolisten tcp 7>"$folder/display" 2>"$folder/xvfb" &
    await "a virtual screen" test -s "$folder/display"
    DISPLAY=:$(cat "$folder/display")
    export DISPLAY
    openbox >"$folder/openbox" 2>&1 &
    await "a window manager" eval 'wmctrl -m >/dev/null 2>&1'
}

# start_program: runs it until its menu has begun.
start_program() {
    rm -f "$log"
    startTime=$(date +%s.%N)
    "$program/tervalis" 2>"$folder/errors" &
    pid=$!
    await "the menu has begun" logged "CSectionMenu::SectionBegin"
    # What is logged last was written at that moment.
    startMs=$(echo "$startTime $(stat -c %.Y "$log")" | awk '{ printf "%d", ($2 - $1) * 1000 }')
    await "a window" find_window
}

find_window() {
    window=$(xdotool search --onlyvisible --name '^Tervalis$' 2>/dev/null)
    [ -n "$window" ]
}

has_ended() { ! kill -0 "$pid" 2>/dev/null; }

# expect_end: the program ends by itself, as it should.
expect_end() {
    await "the program ends" has_ended
    wait "$pid"
    local code=$?
    [ $code -eq 0 ] || fail "the program ended with $code"
    [ -s "$folder/errors" ] && fail "the program said something"
    [ "$(grep -c '' "$log")" -gt 4 ] || fail "the log is short"
    tail -4 "$log" | cmp -s - <(printf '%s\n' CGame::Destroy CPond::UnDataLoad CStatusBar::DataUnload \
        CSectionMenu::UnDataLoad) || fail "the log does not end as it should"
}

# ---- The window ----

# place: the client area on the screen, as WIDTHxHEIGHT+X+Y.
place() {
    xwininfo -id "$window" 2>/dev/null | awk '/Absolute upper-left X/ { x = $NF } /Absolute upper-left Y/ { y = $NF }
        /^ *Width/ { w = $NF } /^ *Height/ { h = $NF } END { print w "x" h "+" x "+" y }'
}

is_at() { [ "$(place)" = "$1" ]; }

# expect_windowed: the window has the place it started with.
expect_windowed() {
    await "the window is at ${homePlace:=$(place)} again" is_at "$homePlace"
    IFS=x+ read -r _ _ viewLeft viewTop <<<"$homePlace"
    viewWidth=640
}

# expect_full_screen: the whole screen is covered, the picture as large as fits in its middle.
expect_full_screen() {
    await "the whole screen is covered" is_at "${screenWidth}x$screenHeight+0+0"
    viewWidth=$((screenWidth * 3 < screenHeight * 4 ? screenWidth : screenHeight * 4 / 3))
    viewLeft=$(((screenWidth - viewWidth) / 2))
    viewTop=$(((screenHeight - viewWidth * 3 / 4) / 2))
}

# scaled LENGTH: of the game's picture, in the screen's pixels.
scaled() { echo $(($1 * viewWidth / 640)); }

# ---- Keys and mouse ----

# press KEY WHAT COMMAND...: presses the key and waits for what it does.
press() {
    xdotool key "$1"
    shift
    await "$@"
}

press_alt_enter() { xdotool keydown alt key Return keyup alt; }

# type_keys KEY...: one after the other, each in a frame of its own.
type_keys() {
    local key
    for key in "$@"; do
        xdotool key "$key"
        sleep "${KEY_PAUSE:-0.2}"
    done
}

point_at() { xdotool mousemove $((viewLeft + $(scaled "$1"))) $((viewTop + $(scaled "$2"))); }

# click X Y WHAT COMMAND...: holds the button until what it does has happened, for a shorter press may fall between two
# frames.
click() {
    point_at "$1" "$2"
    shift 2
    xdotool mousedown 1
    await "$@"
    xdotool mouseup 1
}

# ---- What the screen shows ----

# shot AREA FILE
shot() {
    local w h x y
    IFS=x+ read -r w h x y <<<"$1"
    local part
    part=$(scaled "$w")x$(scaled "$h")+$((viewLeft + $(scaled "$x")))+$((viewTop + $(scaled "$y")))
    { import -silent -window root -crop "$part" +repage ppm:- | convert ppm:- -scale "${w}x$h!" "ppm:$2"; } ||
        fail "the screen cannot be read"
}

# alike FILE FILE: other pages and buttons differ by a tenth and more.
alike() {
    convert "$1" "$2" -compose difference -composite -format '%[fx:mean]\n' info: |
        awk -v tolerance=$TOLERANCE '$1 < tolerance { alike = 1 } END { exit !alike }'
}

# shows PICTURE AREA [PART]: the area looks like the picture, or like that part of it.
shows() {
    shot "$2" "$folder/area"
    convert "$pictures/$1" -crop "${3:-10000x10000+0+0}" +repage "ppm:$folder/part"
    alike "$folder/part" "$folder/area"
}

shows_menu() { shows MainMenu.jpg $WHOLE; }
shows_pond() { shows bg0.jpg $POND; } # by day, with little in it
shows_help() { shows "Help$1.jpg" $HELP; }

# lit AREA COLOUR: some of the area has that colour.
lit() {
    shot "$1" "$folder/area"
    convert "$folder/area" -fuzz 20% -fill black +opaque "$2" -fill white -opaque "$2" -format '%[fx:mean*w*h]\n' info: |
        awk '$1 >= 8 { lit = 1 } END { exit !lit }'
}

# looks_like FILE AREA: the area is exactly as in the earlier shot.
looks_like() {
    shot "$2" "$folder/area"
    cmp -s "$1" "$folder/area"
}

# moves AREA, rests AREA
moves() {
    shot "$1" "$folder/before"
    sleep 0.2
    ! looks_like "$folder/before" "$1"
}
rests() {
    shot "$1" "$folder/before"
    sleep 0.6
    looks_like "$folder/before" "$1"
}

# coloured_cells: the pond's cells of 16 x 16 pixels that are more orange (the first player's snake) or more blue (the
# second player's, and the first berries) than the pond's ground: lines of COLUMN ROW COLOUR.
coloured_cells() {
    local now=$folder/now ground=$folder/ground
    shot $POND "$folder/area"
    convert "$folder/area" -scale 30x30 -depth 8 rgb:- | od -An -v -tu1 -w3 >"$now"
    [ -s "$ground" ] || convert "$pictures/bg0.jpg" -scale 30x30 -depth 8 rgb:- | od -An -v -tu1 -w3 >"$ground"
    paste "$ground" "$now" | awk '{ warmth = ($4 - $6) - ($1 - $3); cell = NR - 1 }
        warmth > 35 || warmth < -35 { print cell % 30, int(cell / 30), (warmth > 0 ? "orange" : "blue") }'
}

# snake_lies COLOUR across|along: four links of that colour in one row, or in one column. Berries alone never do.
snake_lies() {
    coloured_cells | awk -v colour="$1" -v across="$([ "$2" = across ] && echo 1 || echo 0)" \
        '$3 == colour && ++count[across ? $2 : $1] == 4 { found = 1 } END { exit !found }'
}

# ---- Log and settings ----

logged() { grep -qxF -- "$1" "$log" 2>/dev/null; }
count_logged() { grep -cxF -- "$1" "$log"; }
logged_times() { [ "$(count_logged "$1")" -eq "$2" ]; }

# has_setting NAME VALUE: as written in the file.
has_setting() { grep -qE "^\"?$1\"? = $2\$" "$settings" 2>/dev/null; }

# expect_settings NAME VALUE ...
expect_settings() {
    while [ $# -gt 0 ]; do
        has_setting "$1" "$2" || fail "the settings hold $(grep "$1" "$settings"), not $2"
        shift 2
    done
}
