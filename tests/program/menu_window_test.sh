#!/usr/bin/env bash
# Walks through the menu's pages in a real window: pictures, hovering, key capture, full screen, settings, endings.
. "$(dirname "$0")/window_lib.sh"

SOUND_ON=26x23+250+164
SOUND_OFF=33x23+289+164
UP_1=33x33+238+213
UP_2=33x33+368+213

# Recognised by its lower part, in which nothing is written over the picture.
shows_options() { shows Options.jpg 320x45+160+310 320x45+0+185; }
open_options() { click 507 285 "the options page opens" shows_options; }
shows_windowed() { shows OptionsItems.jpg 72x23+250+139 72x23+0+0; }
shows_full() { shows OptionsItems.jpg 85x23+340+139 85x23+72+0; }
shows_sound_on() { shows OptionsItems.jpg $SOUND_ON 26x23+157+0; }
shows_sound_off() { shows OptionsItems.jpg $SOUND_OFF 33x23+183+0; }
focuses() { lit "$1" yellow; }

# hover X Y AREA PICTURE PART: the button lights while the mouse is on it.
hover() {
    point_at "$1" "$2"
    await "the button at $1, $2 lights" shows "$4" "$3" "$5"
    point_at 10 10
    await "the button at $1, $2 is dark again" shows MainMenu.jpg "$3" "$3"
}

hover_all() {
    hover 202 176 172x36+116+158 MainMenuItems.jpg 172x36+0+0
    hover 436 176 154x36+359+158 MainMenuItems.jpg 154x36+172+0
    hover 131 285 111x36+76+267 MainMenuItems.jpg 111x36+326+0
    hover 507 285 94x36+460+267 MainMenuItems.jpg 94x36+437+0
    hover 203 397 60x36+173+379 MainMenuItems.jpg 60x36+531+0
    hover 437 397 60x36+407+379 MainMenuItems.jpg 60x36+591+0
    hover 320 468 245x22+197+457 MainMenuHomepage.jpg 245x22+0+0
}

# longest_start: in ms; the twelve frames of loading and half a second, on a machine that has nothing else to do.
longest_start() { awk '{ print ($1 < 0.5 ? 12 * 40 + 500 : 15000) }' /proc/loadavg; }

start_screen 1280 1024
start_program
step "The menu began $startMs ms after the start."
[ "$startMs" -lt "$(longest_start)" ] || fail "it took $startMs ms to the menu"
expect_windowed
# The window manager's own title may be a few pixels higher or lower than reckoned with.
IFS=x+ read -r width height x y <<<"$homePlace"
[ "$width $height $x" = "640 480 320" ] && [ "$y" -gt 272 ] && [ "$y" -lt 292 ] || fail "the window is at $homePlace"
xprop -id "$window" _NET_WM_ICON | grep -qF "Icon (48 x 48)" || fail "the window has no icon"
point_at 10 10
await "the main menu" shows_menu
cmp -s "$log" - <<'END' || fail "the log of the start is wrong"
CGame::Create
CSectionLoad::SectionBegin
CSectionMenu::DataLoad 0
CSectionMenu::DataLoad 1
CSectionMenu::DataLoad 2
CSectionMenu::DataLoad 3
CPond::DataLoad 0
CPond::DataLoad 1
CPond::DataLoad 2
CStatusBar::DataLoad 0
CStatusBar::DataLoad 1
CStatusBar::DataLoad 2
CSectionLoad::SectionEnd
CSectionMenu::SectionBegin
END

step "A second copy"
cp "$log" "$folder/before_second"
timeout $PATIENCE "$program/tervalis" >"$folder/second" 2>&1 || fail "a second copy ended with $?"
[ ! -s "$folder/second" ] || fail "a second copy said: $(cat "$folder/second")"
cmp -s "$log" "$folder/before_second" || fail "a second copy wrote to the log"
[ "$(wmctrl -l | wc -l)" -eq 1 ] || fail "a second copy has a window"

step "Hovering"
hover_all

step "The home page"
printf '#!/bin/sh\necho "$@" >"%s/browsed"\n' "$folder" >"$folder/bin/xdg-open"
chmod +x "$folder/bin/xdg-open"
point_at 320 468
xdotool mousedown 1 sleep 0.3 mouseup 1 # held when the window goes: the next click must count all the same
await "a browser opens" test -s "$folder/browsed"
await "the window is minimised" eval 'xprop -id "$window" WM_STATE | grep -q Iconic'
grep -q 'docs/index\.html$' "$folder/browsed" || fail "the browser was given $(cat "$folder/browsed")"
wmctrl -a Tervalis
point_at 10 10
await "the window is back" shows_menu

step "Ranking and help"
click 131 285 "the ranking page" shows Ranking.jpg $RANKING
press Escape "the menu again" shows_menu
click 203 397 "help page 1" shows_help 1
click 257 64 "help page 2" shows_help 2
click 380 64 "help page 3" shows_help 3
click 503 64 "help page 4" shows_help 4
click 134 64 "help page 1 again" shows_help 1
press space "the menu again" shows_menu
press F1 "help page 1 by its key" shows_help 1
click 320 415 "the menu again" shows MainMenu.jpg 640x100+0+380 640x100+0+380

step "A conflict of keys, cancelled"
rm "$settings" # written by the ranking page
open_options
await "the focus is on the first key" focuses $UP_1
shows_windowed && shows_sound_on || fail "window and sound are not shown as set"
press w "two equal keys turn red" eval 'lit $UP_1 red && lit $UP_2 red'
xdotool key Return
never "equal keys were accepted" shows_menu
press Escape "the page closes" shows_menu
[ ! -e "$settings" ] || fail "cancelling wrote the settings"

step "New keys and sound off"
open_options
await "the focus is on the first key" focuses $UP_1
lit $UP_1 red && fail "the conflict is still shown"
type_keys i k j l t g f h
await "the focus is on the first key again" focuses $UP_1
click 305 175 "sound off is shown" shows_sound_off
click 320 335 "the page closes" shows MainMenu.jpg 640x300+0+0 640x300+0+0
expect_settings "No Sound" 1 Windowed 1 "Up 1" 73 "Down 1" 75 "Left 1" 74 "Right 1" 76 \
    "Up 2" 84 "Down 2" 71 "Left 2" 70 "Right 2" 72

step "Full screen by the options page, and back"
open_options
shows_sound_off || fail "sound off was forgotten"
click 382 150 "full screen is shown" shows_full
xdotool key Return
expect_full_screen
logged "Windowed -> Full Screen" || fail "going full screen was not logged"
await "the menu in full screen" shows_menu
expect_settings Windowed 0
hover 507 285 94x36+460+267 MainMenuItems.jpg 94x36+437+0
open_options
click 286 150 "window is shown" shows_windowed
xdotool key Return
expect_windowed
logged "Full Screen -> Windowed" || fail "leaving full screen was not logged"
await "the menu in the window" shows_menu
expect_settings Windowed 1 "No Sound" 1

step "Defaults"
open_options
click 250 335 "the defaults are shown" shows_sound_on
press Return "the page closes" shows_menu
expect_settings "No Sound" 0 Windowed 1 "Up 1" 38 "Down 1" 40 "Left 1" 37 "Right 1" 39 \
    "Up 2" 87 "Down 2" 83 "Left 2" 65 "Right 2" 68

step "The quit button, in full screen"
press_alt_enter
expect_full_screen
click 437 397 "the program ends" has_ended
expect_end
expect_settings Windowed 0

step "Full screen from the start, and the close box"
start_program
expect_full_screen
logged "Windowed -> Full Screen" || fail "starting in full screen was not logged"
point_at 10 10
await "the menu" shows_menu
wmctrl -c Tervalis
expect_end

step "A program that is ended takes its message box with it"
mv "$program/Dat" "$folder/"
"$program/tervalis" 2>"$folder/errors" &
pid=$!
await "a message box, which has a process of its own" eval 'box=$(pgrep -P $pid)'
kill -TERM $pid
wait $pid || fail "the program ended with $?"
kill -0 "$box" 2>/dev/null && fail "the box is still there"
mv "$folder/Dat" "$program/"

step "Without a window manager, on a screen that changes meanwhile"
openbox --exit
await "the window manager goes" eval '! wmctrl -m >/dev/null 2>&1'
start_program
expect_full_screen
xrandr --setmonitor smaller 800/200x600/150+100+50 screen
xdotool mousemove 500 350 # keys go to what is under the mouse
press_alt_enter
await "the window is in the middle of the present screen" is_at 640x480+180+121
press_alt_enter
await "the present screen is covered" is_at 800x600+100+50
kill -TERM $pid
expect_end
echo "The menu does what it should."
