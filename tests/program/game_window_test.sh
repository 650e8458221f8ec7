#!/usr/bin/env bash
# Plays in a real window, with keys from the settings: steering, each panel by keys and by mouse, full screen, focus,
# minimising, the mouse cursor, two players.
. "$(dirname "$0")/window_lib.sh"

shows_strip() { shows LeftPanel.bmp 110x40+0+0 110x40+0+0; }
shows_paused() { shows MessagePaused.jpg $PANEL; }
shows_confirm() { shows MessageConfirm.jpg $PANEL; }
plays() { shows_strip && moves $POND; }
# The still behind a panel is at half brightness.
shows_still() {
    shot 110x40+0+0 "$folder/area"
    convert "$pictures/LeftPanel.bmp" -crop 110x40+0+0 +repage -evaluate multiply 0.5 "$folder/half.ppm"
    alike "$folder/half.ppm" "$folder/area" && rests $WHOLE
}
cursor_is() { [ "$(cursor)" = "$1" ]; }

# cursor: shown or hidden, as the display has it.
cursor() {
    python3 - <<'END'
from ctypes import CDLL, POINTER, Structure, c_short, c_ulong, c_ushort, c_void_p
class Picture(Structure):
    _fields_ = [("x", c_short), ("y", c_short), ("width", c_ushort), ("height", c_ushort), ("hotX", c_ushort),
                ("hotY", c_ushort), ("serial", c_ulong), ("pixels", POINTER(c_ulong))]
x11, fixes = CDLL("libX11.so.6"), CDLL("libXfixes.so.3")
x11.XOpenDisplay.restype = c_void_p
fixes.XFixesGetCursorImage.restype = POINTER(Picture)
fixes.XFixesGetCursorImage.argtypes = [c_void_p]
picture = fixes.XFixesGetCursorImage(x11.XOpenDisplay(None)).contents
print("shown" if any(picture.pixels[i] >> 24 & 255 for i in range(picture.width * picture.height)) else "hidden")
END
}

# leave_game TIMES: from play to the menu; as many games have been left then.
leave_game() {
    press Escape "the question whether to quit" shows_confirm
    press Return "the menu" shows_menu
    logged_times CSectionMain::SectionEnd "$1" || fail "the end of the game is not logged"
}

start_screen 1280 1024
cat >"$settings" <<'END'
"Up 1" = 73
"Down 1" = 75
"Left 1" = 74
"Right 1" = 76
"Up 2" = 84
"Down 2" = 71
"Left 2" = 70
"Right 2" = 72
"No Sound" = 1
END
start_program
expect_windowed
await "the main menu" shows_menu

step "A game for one, with keys from the settings"
click 202 176 "the game begins" logged CSectionMain::SectionBegin
await "the pond brightens" shows_pond
await "the snake comes in" snake_lies orange along
press j "the snake turns left" snake_lies orange across
press k "the snake turns down" snake_lies orange along
press l "the snake turns right" snake_lies orange across

step "Panels by keys"
press space "the pause" shows_paused
await "a dark still" shows_still
press F1 "help from the pause" shows_help 1
press Escape "the pause after help" shows_paused
press Return "the game goes on" plays
press Escape "the question whether to quit" shows_confirm
await "a dark still" shows_still
press Escape "the game goes on" plays
press F1 "help from the game" shows_help 1
press space "the pause after help" shows_paused
press space "the game goes on" plays

step "Panels by mouse"
click 29 440 "the pause" shows_paused
click 355 265 "help from the pause" shows_help 1
click 257 64 "help page 2" shows_help 2
click 380 64 "help page 3" shows_help 3
click 503 64 "help page 4" shows_help 4
click 134 64 "help page 1 again" shows_help 1
click 320 415 "the pause after help" shows_paused
click 285 265 "the game goes on" plays
click 131 440 "the question whether to quit" shows_confirm
click 355 265 "the game goes on" plays
click 80 440 "help from the game" shows_help 1
press Escape "the pause after help" shows_paused
press Escape "the game goes on" plays

step "Full screen and back"
press_alt_enter
expect_full_screen
logged_times "Windowed -> Full Screen" 1 || fail "going full screen was not logged"
await "the game in full screen" plays
click 29 440 "the pause in full screen" shows_paused
press space "the game goes on" plays
press_alt_enter
expect_windowed
logged_times "Full Screen -> Windowed" 1 || fail "leaving full screen was not logged"
await "the game in the window" plays

step "The title's double click, the maximise box"
xdotool mousemove $((viewLeft + 200)) $((viewTop - 10)) click --repeat 2 --delay 100 1
expect_full_screen
await "the game in full screen" plays
press_alt_enter
expect_windowed
wmctrl -r Tervalis -b add,maximized_vert,maximized_horz
expect_full_screen
await "the game in full screen" plays
press_alt_enter
expect_windowed
await "the game in the window" plays
logged_times "Windowed -> Full Screen" 3 && logged_times "Full Screen -> Windowed" 3 || fail "the log of the switches"

step "Another window, minimising"
xmessage -geometry +0+0 Wait 2>/dev/null &
other=$!
await "the game stands still without the focus" rests $WHOLE
shows_strip || fail "the still is not the game's last frame"
kill $other
await "the game goes on" plays
xdotool windowminimize "$window"
await "the window is minimised" eval 'xprop -id "$window" WM_STATE | grep -q Iconic'
wmctrl -a Tervalis
expect_windowed
await "the game goes on" plays

step "The mouse cursor"
point_at 300 300
await "the cursor hides" cursor_is hidden
point_at 320 300
await "the cursor shows" cursor_is shown
await "the cursor hides again" cursor_is hidden
press space "the cursor shows in the pause" cursor_is shown
press space "the game goes on" plays

step "Leaving"
leave_game 1
grep -qE '^"Rank 1" = [1-9]' "$settings" && fail "a game that was left entered the ranking"

step "A game for two"
click 436 176 "the game begins" logged_times CSectionMain::SectionBegin 2
await "the pond brightens" shows_pond
await "the first snake comes in" snake_lies orange along
await "the second snake comes in" snake_lies blue along
press j "the first snake turns left" snake_lies orange across
await "the second snake goes straight on" snake_lies blue along
press h "the second snake turns right" snake_lies blue across
leave_game 2

press_alt_enter
expect_full_screen
click 437 397 "the program ends" has_ended
expect_end
expect_settings Windowed 0 "No Sound" 1 "Up 1" 73 "Right 2" 72 "Rank 1" 0
echo "The game does what it should."
