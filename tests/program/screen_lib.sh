# shellcheck shell=bash disable=SC2034 # names for the script that sources this
# Sourced by program_test.sh: a virtual screen with a window manager, the program on it, its picture and its files. All
# waiting is for something that shows, never for a time.
# Areas are WIDTHxHEIGHT+X+Y and positions X Y in the game's own 640 x 480 picture, in whichever mode it is shown.
PATIENCE=90 # seconds until what must happen has not happened, on a machine that is busy with other things
TOLERANCE=0.03 # of 1, the mean difference of pictures: fewer colours, some waves, small writing
WHOLE=640x480+0+0
NEXT_FIELD=33x33+238+253 # of the options page, behind the one that has the focus first
PANEL=160x90+240+195 # where the paused and the confirmation panel show

# shellcheck disable=SC2046 # lists of numbers
cleanup() {
    ! is_wine || timeout 20 wineserver -k
    kill $(jobs -rp) $(pgrep -f "$folder/bin/xdg-open") 2>/dev/null # a browser that nobody listens to
    wait
    rm -rf "$folder"
}

# fail WHAT: ends the test, leaving the screen as it was then.
fail() {
    echo "FAILED: $*"
    import -silent -window root program_failure.png && echo "The screen: $PWD/program_failure.png"
    sed 's/^/    Log: /' "$log"
    sed 's/^/    said: /' "$folder/errors"
    exit 1
}

# await WHAT COMMAND...: until the command succeeds.
await() {
    local what=$1 end=$((SECONDS + PATIENCE))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || fail "not within $PATIENCE seconds: $what"
        sleep 0.05
    done
}

# start_screen WIDTHxHEIGHT
start_screen() {
    Xvfb -displayfd 7 -screen 0 "$1x24" -nolisten tcp 7>"$folder/display" 2>"$folder/xvfb" &
    await "a virtual screen" test -s "$folder/display"
    DISPLAY=:$(cat "$folder/display")
    export DISPLAY
    openbox >"$folder/openbox" 2>&1 &
    await "a window manager" eval 'wmctrl -m >/dev/null 2>&1'
}

# start_program: runs it until its menu has begun.
start_program() {
    rm -f "$log"
    "$program/tervalis" 2>"$folder/errors" &
    pid=$!
    await "the menu has begun" logged "CSectionMenu::SectionBegin"
    await "a window" find_window
    point_at 10 10
}

find_window() { window=$(xdotool search --onlyvisible --name "$windowName" 2>/dev/null) && look_at_place; }
is_minimised() { xprop -id "$window" WM_STATE | grep -q Iconic; }
has_ended() { ! kill -0 "$pid" 2>/dev/null; }

# expect_end: the program ends by itself, as it should.
expect_end() {
    await "the program ends" has_ended
    wait "$pid" || fail "the program ended with $?"
    is_wine || [ ! -s "$folder/errors" ] || fail "the program said something"
    [ "$(tail -1 "$log" | tr -d '\r')" = CSectionMenu::UnDataLoad ] || fail "the log does not end as it should"
}

# look_at_place: finds the picture in the middle of the client area, as large as fits.
look_at_place() {
    place=$(xwininfo -id "$window" 2>/dev/null | awk '/Absolute upper-left X/ { x = $NF } /^ *Width/ { w = $NF }
        /Absolute upper-left Y/ { y = $NF } /^ *Height/ { h = $NF } END { print w "x" h "+" x "+" y }')
    local width height left top
    IFS=x+ read -r width height left top <<<"$place"
    viewWidth=$((width * 3 < height * 4 ? width : height * 4 / 3))
    viewLeft=$((left + (width - viewWidth) / 2))
    viewTop=$((top + (height - viewWidth * 3 / 4) / 2))
}
is_at() { look_at_place && [[ $place == $1* ]]; }

# press KEY WHAT COMMAND...: presses the key and waits for what it does.
press() {
    xdotool key "$1"
    shift
    await "$@"
}
press_alt_enter() { xdotool keydown alt key Return keyup alt; }
point_at() { xdotool mousemove $((viewLeft + $1 * viewWidth / 640)) $((viewTop + $2 * viewWidth / 640)); }

# click X Y WHAT COMMAND...: holds the button until what it does has happened.
click() {
    point_at "$1" "$2"
    shift 2
    xdotool mousedown 1
    await "$@"
    xdotool mouseup 1
}

# shot AREA FILE
shot() {
    local w h x y
    IFS=x+ read -r w h x y <<<"$1"
    local part=$((w * viewWidth / 640))x$((h * viewWidth / 640))
    part+=+$((viewLeft + x * viewWidth / 640))+$((viewTop + y * viewWidth / 640))
    import -silent -window root -crop "$part" +repage ppm:- | convert ppm:- -scale "${w}x$h!" "ppm:$2"
}

# shows PICTURE AREA [PART]: the area looks like the picture, or like that part of it. Others differ by a tenth or more.
shows() {
    shot "$2" "$folder/area"
    convert "$pictures/$1" -crop "${3:-10000x10000+0+0}" +repage "$folder/area" -compose difference -composite \
        -format "%[fx:mean<$TOLERANCE]" info: | grep -qx 1
}
shows_menu() { shows MainMenu.jpg $WHOLE; }

# rests: the whole picture stays as it is.
rests() {
    shot $WHOLE "$folder/before"
    shot $WHOLE "$folder/area"
    cmp -s "$folder/before" "$folder/area"
}
# has_changed AREA: it differs from the picture taken before.
has_changed() { shot "$1" "$folder/area" && ! cmp -s "$folder/before" "$folder/area"; }
plays() { shows LeftPanel.bmp 110x40+0+0 110x40+0+0 && ! rests; }

logged() { [ -e "$log" ] && tr -d '\r' <"$log" | grep -qxF -- "$1"; }

# has_setting NAME NUMBER
has_setting() {
    if is_wine; then
        timeout 60 wine reg query 'HKCU\Software\Tervalis' /v "$1" 2>/dev/null | grep -q "REG_DWORD *0x$(printf %x "$2")"
    else
        grep -qE "^\"?$1\"? = $2\$" "$settings"
    fi
}
