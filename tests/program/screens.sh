#!/usr/bin/env bash
# Shows the game on a screen of that size, in the window and in full screen, and leaves pictures of the whole screen.
#     screens.sh FOLDER_OF_THE_PROGRAM FOLDER_OF_THE_PICTURES WIDTH HEIGHT FOLDER_FOR_SCREENSHOTS
. "$(dirname "$0")/window_lib.sh"
TOLERANCE=0.06 # a smoothed picture has softer edges

keep() { import -silent -window root "$5/$3x$4_$6.png"; }

mkdir -p "$5"
start_screen "$3" "$4"
start_program
expect_windowed
point_at 202 176
await "the button lights" shows MainMenuItems.jpg 172x36+116+158 172x36+0+0
keep "$@" window_menu
press_alt_enter
expect_full_screen
point_at 507 285
await "the button lights" shows MainMenuItems.jpg 94x36+460+267 94x36+437+0
keep "$@" full_menu
click 202 176 "the game begins" logged CSectionMain::SectionBegin
await "the pond brightens" shows_pond
sleep 6 # until berries have fallen
keep "$@" full_game
press_alt_enter
expect_windowed
await "the game in the window" moves $POND
keep "$@" window_game
wmctrl -c Tervalis
expect_end
