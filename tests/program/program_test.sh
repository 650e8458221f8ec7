#!/usr/bin/env bash
# Walks through the real program with real keys and mouse, as a player would who looks at the screen; the Windows
# program under Wine.
#     program_test.sh FOLDER_OF_THE_PROGRAM|WINDOWS_ARCHIVE FOLDER_OF_THE_PICTURES
# shellcheck source=tests/program/screen_lib.sh
. "$(dirname "$0")/screen_lib.sh"
set -u
archive=$1
pictures=$2
is_wine() { [[ $archive == *.zip ]]; }
folder=$(mktemp -d)
program=$folder/program
log=$program/Log.txt
settings=$folder/config/Tervalis/settings.toml
windowName='^Tervalis$'
trap cleanup EXIT
export HOME=$folder/home XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder/run SDL_AUDIODRIVER=dummy
export PATH=$folder/bin:$PATH DBUS_SESSION_BUS_ADDRESS=disabled: # not the session of whoever runs the test
# Libraries that SDL loads for a display and unloads again leave memory behind. The starts without one look for leaks.
export ASAN_OPTIONS=detect_leaks=0
export WINEPREFIX=$folder/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
unset WAYLAND_DISPLAY SDL_VIDEODRIVER
mkdir -p "$folder/bin" "$HOME" "$program"
mkdir -m 700 "$XDG_RUNTIME_DIR"
touch "$folder/errors"

install_program() {
    id=$(sed -n 's/^StartupWMClass=//p' "${archive%/*.zip}"/packaging/*.desktop)
    if ! is_wine; then
        cp -r "$archive/tervalis" "$archive/Dat" "$archive/Wav" "$archive/docs" "$program/"
        return
    fi
    cmake -E chdir "$program" cmake -E tar xf "$archive" && mv "$program"/*/* "$program/"
    # shellcheck disable=SC2016 # for the script that is written
    printf '#!/bin/sh\nexec wine "${0%%/*}/tervalis.exe"\n' >"$program/tervalis"
    chmod +x "$program/tervalis"
    # A sound card that swallows everything, so that the sounds are loaded and played.
    export ALSA_CONFIG_PATH=$folder/asound.conf
    printf 'pcm.!default { type null }\nctl.!default { type null }\n' >"$ALSA_CONFIG_PATH"
    timeout 300 wineboot --init >/dev/null 2>&1 || fail "Wine does not start"
}

check_second_copy() {
    cp "$log" "$folder/before"
    timeout $PATIENCE "$program/tervalis" || fail "a second copy ended with $?"
    cmp -s "$log" "$folder/before" || fail "a second copy wrote to the log"
}

bind_a_key() {
    click 507 285 "the options page opens" shows Options.jpg 320x45+160+310 320x45+0+185
    press i "the next field has the focus" lit 33x33+238+253 yellow
    press Return "the menu again" shows_menu
    has_setting "Up 1" 73 || fail "the new key is not stored"
    has_setting "Down 1" 40 || fail "the other keys are not stored"
}

play_a_game() {
    click 202 176 "the game begins" logged CSectionMain::SectionBegin
    await "the game runs" plays
    press space "the pause" shows MessagePaused.jpg $PANEL
    await "a still" rests
    click 285 265 "the game goes on" plays
    is_wine || lose_and_regain_focus
    press Escape "the question whether to quit" shows MessageConfirm.jpg $PANEL
    press Return "the menu" shows_menu
}

lose_and_regain_focus() {
    xmessage -geometry +0+0 Wait 2>/dev/null &
    local other=$!
    await "the game stands still without the focus" rests
    kill $other
    await "the game goes on" plays
    xdotool mousedown 1 windowminimize "$window"
    await "the window is minimised" eval 'xprop -id "$window" WM_STATE | grep -q Iconic'
    xdotool mouseup 1 # where the window does not hear of it
    wmctrl -a Tervalis
    await "the game goes on" plays
    point_at 29 440
    await "the button is no longer held" plays
    xdotool click 1
    await "the first click pauses" shows MessagePaused.jpg $PANEL
    press space "the game goes on" plays
}

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

open_home_page() {
    printf '#!/bin/sh\necho "$@" >"%s/browsed"\n' "$folder" >"$folder/bin/xdg-open"
    chmod +x "$folder/bin/xdg-open"
    point_at 320 468
    xdotool click 1 # as quick as it may be, it falls into a frame
    await "a browser opens the page" eval 'grep -q "docs/index\.html$" "$folder/browsed" 2>/dev/null'
    await "the window is minimised" eval 'xprop -id "$window" WM_STATE | grep -q Iconic'
    wmctrl -a Tervalis
    point_at 10 10
    await "the window is back" shows_menu
}

quit() {
    click 437 397 "the program ends" has_ended
    expect_end
}

quit_in_full_screen() {
    enter_full_screen press_alt_enter
    quit
    has_setting Windowed 0 || fail "the mode is not stored"
    start_program
    enter_full_screen true
    quit
}

# A program that is ended takes its message box, a process of its own, with it.
end_a_failed_start() {
    mv "$program/Dat" "$folder/"
    "$program/tervalis" 2>"$folder/errors" &
    pid=$!
    await "a message box" eval 'box=$(pgrep -P $pid)'
    kill -TERM $pid
    wait $pid || fail "the program ended with $?"
    ! kill -0 "$box" 2>/dev/null || fail "the box is still there"
    mv "$folder/Dat" "$program/"
}

# Without a window manager, the screen changes while the program covers it.
change_the_screen() {
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
}

start_screen 1280x1024
install_program
start_program
homePlace=$place
fullPlace=1280x1024+0+0
await "the main menu" shows_menu
is_wine || xprop -id "$window" _NET_WM_ICON | grep -qF "Icon (48 x 48)" || fail "the window has no icon"
is_wine || xprop -id "$window" WM_CLASS | grep -qF "\"$id\"" || fail "no desktop knows the window"
step "A second copy" && check_second_copy
step "A new key" && bind_a_key
step "A game" && play_a_game
if is_wine; then # full screen changes the mode of a desktop of Wine's own
    quit
    wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d own /f >/dev/null 2>&1
    wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v own /d 1024x768 /f >/dev/null 2>&1
    windowName='Wine desktop$'
    start_program
    homePlace=1024x768
    fullPlace=640x480
else
    step "The home page" && open_home_page
    step "The title's double click and the maximise box"
    enter_and_leave_full_screen xdotool mousemove $((viewLeft + 200)) $((viewTop - 10)) click --repeat 2 --delay 100 1
    enter_and_leave_full_screen wmctrl -r Tervalis -b add,maximized_vert,maximized_horz
fi
step "Full screen" && enter_and_leave_full_screen press_alt_enter
step "The end in full screen" && quit_in_full_screen
is_wine || { step "A start that fails" && end_a_failed_start && step "Another screen" && change_the_screen; }
echo "The program does what it should."
