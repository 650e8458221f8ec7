#!/usr/bin/env bash
# Unpacks the Windows program's archive and runs it under Wine on a virtual screen: loading, menu, a game steered with
# keys, full screen, quit; checks log, registry and screen.
# Ends by itself: every wait has its limit, and ctest has one for all.
#     wine_test.sh ARCHIVE FOLDER_OF_THE_PICTURES [FOLDER_FOR_SCREENSHOTS]
unpacked=$(mktemp -d)
archive=$1
shots=${3:-}
cmake -E chdir "$unpacked" cmake -E tar xf "$archive" && mv "$unpacked"/*/* "$unpacked/" || exit 1
# shellcheck disable=SC2016 # for the script that is written
printf '#!/bin/sh\nexec wine "${0%%/*}/tervalis.exe"\n' >"$unpacked/tervalis"
chmod +x "$unpacked/tervalis"

. "$(dirname "$0")/window_lib.sh" "$unpacked" "$2"
export WINEPREFIX=$folder/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
cp "$unpacked/tervalis.exe" "$program/"
# A sound card that swallows everything, so that the sounds are loaded and played.
export ALSA_CONFIG_PATH=$folder/asound.conf
printf 'pcm.!default { type null }\nctl.!default { type null }\n' >"$ALSA_CONFIG_PATH"

stop_wine() {
    timeout 20 wineserver -k
    rm -rf "$unpacked"
    cleanup
}
trap stop_wine EXIT

# Lines end in CR LF here.
logged() { [ -e "$log" ] && tr -d "\r" <"$log" | grep -qxF -- "$1"; }
count_logged() { tr -d '\r' <"$log" | grep -cxF -- "$1"; }

# has_setting NAME VALUE: a number in the registry.
has_setting() {
    timeout 30 wine reg query 'HKCU\Software\Tervalis' /v "$1" 2>/dev/null | tr -d '\r' |
        grep -qE "REG_DWORD +0x$(printf %x "$2")\$"
}

windowName='^Tervalis$'
find_window() {
    window=$(xdotool search --onlyvisible --name "$windowName" 2>/dev/null)
    [ -n "$window" ]
}

# desktop_is WIDTHxHEIGHT: the display mode, on Wine's own desktop.
desktop_is() {
    IFS=+ read -r size viewLeft viewTop <<<"$(place)"
    [ "$size" = "$1" ]
}

# keep NAME: a screenshot for the eye.
keep() { [ -z "$shots" ] || shot "$WHOLE" "$folder/keep" && convert "ppm:$folder/keep" "$shots/$1.png"; }

expect_end() {
    await "the program ends" has_ended
    wait "$pid"
    local code=$?
    [ $code -eq 0 ] || fail "the program ended with $code"
    tail -4 "$log" | tr -d '\r' | cmp -s - <(printf '%s\n' CGame::Destroy CPond::UnDataLoad CStatusBar::DataUnload \
        CSectionMenu::UnDataLoad) || fail "the log does not end as it should"
}

start_screen 1280 1024
step "A new Windows"
timeout 120 wineboot --init >/dev/null 2>&1 || fail "Wine does not start"

step "The start"
start_program
step "The menu began $startMs ms after the start."
expect_windowed
point_at 10 10
await "the main menu" shows_menu
keep menu
point_at 507 285
await "the button lights" shows MainMenuItems.jpg 94x36+460+267 94x36+437+0

step "A second copy"
cp "$log" "$folder/before_second"
timeout 30 "$program/tervalis" 2>/dev/null || fail "a second copy ended with $?"
cmp -s "$log" "$folder/before_second" || fail "a second copy wrote to the log"

step "New keys"
click 507 285 "the options page opens" shows Options.jpg 320x45+160+310 320x45+0+185
type_keys i k j l t g f h
keep options
press Return "the menu again" shows_menu
for setting in "Windowed 1" "No Sound 0" "Up 1 73" "Down 1 75" "Left 1 74" "Right 1 76" "Right 2 72" "Rank 10 0"; do
    has_setting "${setting% *}" "${setting##* }" || fail "the registry lacks $setting"
done

step "A game"
click 202 176 "the game begins" logged CSectionMain::SectionBegin
await "the pond brightens" shows_pond
await "the snake comes in" snake_lies orange along
press j "the snake turns left" snake_lies orange across
press k "the snake turns down" snake_lies orange along
keep game
press space "the pause" shows MessagePaused.jpg $PANEL
keep pause
press F1 "help from the pause" shows_help 1
press Escape "the pause after help" shows MessagePaused.jpg $PANEL
press space "the game goes on" moves $POND
press Escape "the question whether to quit" shows MessageConfirm.jpg $PANEL
press Return "the menu" shows_menu
logged CSectionMain::SectionEnd || fail "the end of the game is not logged"

step "The end"
click 437 397 "the program ends" has_ended
expect_end
has_setting "Up 1" 73 || fail "the registry has lost a key"
step "Full screen"
wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d own /f >/dev/null 2>&1
wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v own /d 1024x768 /f >/dev/null 2>&1
windowName='Wine desktop$'
start_program
await "the desktop is as it was" desktop_is 1024x768
press_alt_enter
await "the display mode changes" desktop_is 640x480
await "the menu in full screen" shows_menu
keep full_screen
press_alt_enter
await "the display mode is given back" desktop_is 1024x768
logged_times "Windowed -> Full Screen" 1 && logged_times "Full Screen -> Windowed" 1 || fail "the log of the switches"
press_alt_enter
await "the display mode changes again" desktop_is 640x480
await "the menu in full screen" shows_menu
click 437 397 "the program ends" has_ended
expect_end
has_setting Windowed 0 || fail "the registry lacks the mode"

step "A start in full screen"
start_program
await "the display mode changes" desktop_is 640x480
await "the menu in full screen" shows_menu
click 437 397 "the program ends" has_ended
expect_end
echo "The Windows program does what it should."
