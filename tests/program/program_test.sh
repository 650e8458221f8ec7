#!/usr/bin/env bash
# Walks through the real program with real keys and mouse, as a player would who looks at the screen; the Windows
# program under Wine.
#     program_test.sh FOLDER_OF_THE_PROGRAM|WINDOWS_INSTALLER FOLDER_OF_THE_PICTURES
# shellcheck source=tests/program/screen_lib.sh
. "$(dirname "$0")/screen_lib.sh"
set -u
archive=$1
pictures=$2
is_wine() { [[ $archive == *.exe ]]; }
folder=$(mktemp -d)
program=$folder/é池 # a name that no code page has but UTF-8
is_wine || program+="it's a \$(touch x) & more" # nor one that a shell would take apart
log=$program/Log.txt
settings=$folder/config/Tervalis/settings.toml
windowName='^Tervalis$'
trap cleanup EXIT
export HOME=$folder/home XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder/run SDL_AUDIODRIVER=dummy
export PATH=$folder/bin:$PATH DBUS_SESSION_BUS_ADDRESS=disabled: # not the session of whoever runs the test
# Libraries that SDL loads for a display and unloads again leave memory behind. The starts without one look for leaks.
export ASAN_OPTIONS=detect_leaks=0
export WINEPREFIX=$folder/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
export LC_ALL=C.UTF-8 # for the names of folders
unset WAYLAND_DISPLAY SDL_VIDEODRIVER
mkdir -p "$folder/bin" "$HOME" "$program"
mkdir -m 700 "$XDG_RUNTIME_DIR"
touch "$folder/errors"

id=$(sed -n 's/^StartupWMClass=//p' "${archive%/*.exe}"/packaging/*.desktop)
if is_wine; then
    # A sound card that swallows everything, so that the sounds are loaded and played.
    export ALSA_CONFIG_PATH=$folder/asound.conf
    printf 'pcm.!default { type null }\nctl.!default { type null }\n' >"$ALSA_CONFIG_PATH"
    # The first start, which makes Wine's folder, fails now and then by itself.
    start_wine() { WINEDEBUG='' timeout 300 wineboot --init >>"$folder/errors" 2>&1; }
    start_wine || { wineserver -k; rm -rf "$WINEPREFIX" && start_wine; } || fail "Wine does not start"
    timeout 300 wine "$archive" /S "/D=Z:${program//\//\\}" || fail "it cannot be installed"
    tr -d '\0' <"$program/tervalis.exe" | grep -aqF "$id" || fail "no task bar knows the program"
    # shellcheck disable=SC2016 # for the script that is written
    printf '#!/bin/sh\nexec wine "${0%%/*}/tervalis.exe"\n' >"$program/tervalis"
    chmod +x "$program/tervalis"
else
    cp -r "$archive/tervalis" "$archive/Dat" "$archive/Wav" "$archive/docs" "$program/"
fi

enter_full_screen() {
    "$@"
    await "the screen is covered" is_at "$fullPlace"
    await "the menu in full screen" shows_menu
}

# enter_and_leave_full_screen COMMAND...: the command enters it.
enter_and_leave_full_screen() {
    enter_full_screen "$@"
    press_alt_enter
    await "the window is where it was" is_at "$homePlace"
    is_wine || await "the menu in the window" shows_menu # somewhere on the desktop
}

quit() {
    click 437 397 "the program ends" has_ended
    expect_end
}

# The window loses the focus, in two ways, and gets it back.
turn_away() {
    xmessage -geometry +0+0 Wait 2>/dev/null &
    local other=$!
    await "the game stands still without the focus" rests
    kill $other
    await "the game goes on" plays
    xdotool mousedown 1 windowminimize "$window"
    await "the window is minimised" is_minimised
    xdotool mouseup 1 # where the window does not hear of it
    wmctrl -a Tervalis
    await "the game goes on" plays
    point_at 29 440
    await "the button is no longer held" plays
    xdotool click 1
    await "the first click pauses" shows MessagePaused.jpg $PANEL
    press space "the game goes on" plays
}

start_screen 1280x1024
start_program
homePlace=$place
fullPlace=1280x1024+0+0
await "the main menu" shows_menu
is_wine || xprop -id "$window" _NET_WM_ICON | grep -qF "Icon (48 x 48)" || fail "the window has no icon"
is_wine || xprop -id "$window" WM_CLASS | grep -qF "\"$id\"" || fail "no desktop knows the window"

click 507 285 "the options page opens" shows Options.jpg 320x45+160+310 320x45+0+185
shot $NEXT_FIELD "$folder/before"
press i "the next field has the focus" has_changed $NEXT_FIELD
press Return "the menu again" shows_menu
has_setting "Up 1" 73 || fail "the new key is not stored"

click 202 176 "the game begins" logged CSectionMain::SectionBegin
await "the game runs" plays
press space "the pause" shows MessagePaused.jpg $PANEL
await "a still" rests
click 285 265 "the game goes on" plays
is_wine || turn_away
press Escape "the question whether to quit" shows MessageConfirm.jpg $PANEL
press Return "the menu" shows_menu

if is_wine; then # full screen changes the mode of a desktop of Wine's own
    quit
    wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d own /f >/dev/null 2>&1
    wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v own /d 1024x768 /f >/dev/null 2>&1
    windowName='Wine desktop$'
    start_program
    homePlace=1024x768
    fullPlace=640x480
else
    printf '#!/bin/sh\necho "$@" >"%s/browsed"\n' "$folder" >"$folder/bin/xdg-open"
    chmod +x "$folder/bin/xdg-open"
    mkfifo "$folder/browsed" # a browser stays open
    point_at 320 468
    xdotool click 1 # as quick as it may be, it falls into a frame
    await "the window is minimised" is_minimised
    [ "$(timeout $PATIENCE cat "$folder/browsed")" = "$program/docs/index.html" ] || fail "another page was opened"
    await "the browser is nobody's child" eval '! pgrep -P "$pid" >/dev/null'
    wmctrl -a Tervalis
    point_at 10 10
    await "the window is back" shows_menu
    enter_and_leave_full_screen xdotool mousemove $((viewLeft + 200)) $((viewTop - 10)) click --repeat 2 --delay 100 1
    enter_and_leave_full_screen wmctrl -r Tervalis -b add,maximized_vert,maximized_horz

    press ctrl+plus "the window is twice as large" is_at 1280x960
    enter_full_screen press_alt_enter
    press_alt_enter
    await "it is as large again" is_at 1280x960
    quit
    start_program
    await "the size is remembered" is_at 1280x960
    await "the menu twice as large" shows_menu
    press ctrl+0 "the window is as before" is_at "$homePlace"
fi
enter_and_leave_full_screen press_alt_enter
enter_full_screen press_alt_enter
quit
has_setting Windowed 0 || fail "the mode is not stored"
start_program
enter_full_screen true
quit

if is_wine; then
    [ -n "$(find "$WINEPREFIX" -name Tervalis.lnk)" ] || fail "the start menu lacks the program"
    timeout 300 wine "$program/uninstall.exe" /S "_?=Z:${program//\//\\}" || fail "it cannot be removed"
    rm "$program/uninstall.exe" # which so called waits for the end, and cannot remove itself
    [ "$(find "$program" -mindepth 1 -printf %P)" = tervalis ] || fail "files are left: $(ls -R "$program")"
    [ -z "$(find "$WINEPREFIX" -name Tervalis.lnk)" ] || fail "the start menu keeps the program"
    has_setting Windowed 0 || fail "the settings are gone"
else
    mv "$program/Dat" "$folder/"
    "$program/tervalis" 2>"$folder/errors" &
    pid=$!
    await "a message box" eval 'box=$(pgrep -P $pid)'
    kill -TERM $pid
    wait $pid || fail "the program ended with $?"
    ! kill -0 "$box" 2>/dev/null || fail "the box is still there"
    mv "$folder/Dat" "$program/"

    openbox --exit
    await "the window manager goes" eval '! wmctrl -m >/dev/null 2>&1'
    start_program
    await "the screen is covered" is_at "$fullPlace"
    xrandr --setmonitor smaller 800/200x600/150+100+50 screen >/dev/null
    xdotool mousemove 500 350 # keys go to what is under the mouse
    press_alt_enter
    await "the window is in the middle of the present screen" is_at 640x480+180+121
    press_alt_enter
    await "the present screen is covered" is_at 800x600+100+50
    kill -TERM $pid
    expect_end
fi
echo "The program does what it should."
