#!/usr/bin/env bash
# Plays a whole game for one in a real window, as a player would who looks at the screen: eats, loses all lives, enters
# a name into the ranking, and finds it there after a new start.
. "$(dirname "$0")/window_lib.sh"

SCORE=60x16+46+120
FIRST_NAME=100x16+270+133
FIRST_PLACE=240x20+200+131

shows_ranking() { shows Ranking.jpg $RANKING; }
score_has_changed() { ! looks_like "$folder/no_score" $SCORE; }
name_is_typed() { ! lit $FIRST_NAME yellow; }
game_is_over() { logged CSectionMain::SectionEnd; }

# way_to_berry: how many columns the nearest berry lies right of the snake, which swims upward; negative for left of it.
way_to_berry() {
    coloured_cells | awk '
        $3 == "orange" && ++links[$1] == 3 { snake = $1 }
        $3 == "blue" { berries[$1] }
        END {
            best = 99
            for (column in berries) {
                way = (column - snake + 45) % 30 - 15
                if (way * way < best * best)
                    best = way
            }
            print best
        }'
}

# Turns wait for the next cell, ten at most, so that a flight of stairs needs no exact moment.
climb_stairs() {
    local side=Right columns=$1 i
    [ "$columns" -lt 0 ] && side=Left && columns=$((-columns))
    for ((i = 1; i <= columns; ++i)); do
        type_keys $side Up
        ((i % 4 == 0)) && sleep 2
    done
}

# eat_berry: climbs into a berry's column and swims round the pond in it. A late turn may miss it, so several attempts.
eat_berry() {
    local attempt way
    for attempt in 1 2 3 4 5; do
        way=$(way_to_berry)
        step "Attempt $attempt: the nearest berry is $way columns away."
        [ "$way" = 99 ] || climb_stairs "$way"
        for _ in $(seq 48); do
            score_has_changed && return
            sleep 0.25
        done
    done
    fail "no berry was eaten"
}

# lose_lives: swims in the tightest circles, so that the snake bites itself. The second Up starts a new life.
lose_lives() {
    local end=$((SECONDS + 120))
    until game_is_over; do
        [ $SECONDS -lt $end ] || fail "the game is not over after two minutes of circles"
        type_keys Right Down Left Up Up
        sleep 0.4
    done
}

start_screen 1280 1024
start_program
expect_windowed
await "the main menu" shows_menu

step "A game for one"
click 202 176 "the game begins" logged CSectionMain::SectionBegin
await "the pond brightens" shows_pond
shot $SCORE "$folder/no_score"
sleep 4 # until the first berries have fallen
await "the snake comes in" snake_lies orange along
KEY_PAUSE=0.1
eat_berry
lose_lives
step "The game is over."

KEY_PAUSE=0.3
await "the ranking page asks for a name" shows_ranking
await "the cursor blinks in the first place" lit $FIRST_NAME yellow
has_setting "Rank 1" 0 && fail "the settings were written before the name was entered"
type_keys shift+a n n x BackSpace minus 7 space b Return
await "the name is no longer being typed" name_is_typed
shows_ranking || fail "the end of the name closed the page"
shot $FIRST_PLACE "$folder/first_place"
press Return "the menu" shows_menu
expect_settings "Name 1" '"Ann-7 b"' "Name 2" '""' "Rank 2" 0
grep -qE '^"Rank 1" = [1-9][0-9]*[05]$|^"Rank 1" = 5$' "$settings" || fail "the score is $(grep 'Rank 1"' "$settings")"
click 131 285 "the ranking" shows_ranking
await "the new name is in the first place" looks_like "$folder/first_place" $FIRST_PLACE
press space "the menu" shows_menu
wmctrl -c Tervalis
expect_end

step "A new start"
start_program
expect_windowed
await "the main menu" shows_menu
click 131 285 "the ranking" shows_ranking
await "the name is still in the first place" looks_like "$folder/first_place" $FIRST_PLACE
press Return "the menu" shows_menu
click 437 397 "the program ends" has_ended
expect_end
expect_settings "Name 1" '"Ann-7 b"'
echo "A whole game ends in the ranking."
