#pragma once

#include <cstdint>

/// What the menu scene's pages are made of: numbers of pictures and ids of items.

enum MenuPicture : int {
    PICTURE_MAIN_MENU = 0,
    PICTURE_HOME_PAGE = 1,
    PICTURE_MAIN_ITEMS = 2, ///< a strip of hover pictures
    PICTURE_OPTIONS = 3,
    PICTURE_OPTIONS_ITEMS = 4, ///< a strip of checked pictures
    PICTURE_RANKING = 5,
    PICTURE_HELP_FIRST = 6,
    PICTURE_HOVER_FIRST = 10, ///< views of the strips from here on
    PICTURE_CHECKED_FIRST = 16,
};

enum MenuItem : int {
    BUTTON_HOME_PAGE = 0,
    BUTTON_ONE_PLAYER = 1,
    BUTTON_TWO_PLAYERS = 2,
    BUTTON_RANKING = 3,
    BUTTON_OPTIONS = 4,
    BUTTON_HELP = 5,
    BUTTON_QUIT = 6,
    BUTTON_OPTIONS_OK = 7,
    BUTTON_OPTIONS_CANCEL = 8,
    BUTTON_OPTIONS_DEFAULT = 9,
    GROUP_DISPLAY = 10,
    TOGGLE_WINDOWED = 11,
    TOGGLE_FULL_SCREEN = 12,
    GROUP_SOUND = 13,
    TOGGLE_SOUND_ON = 14,
    TOGGLE_SOUND_OFF = 15,
    FIELD_KEY_FIRST = 16, ///< eight key fields
    FIELD_KEY_LAST = 23,
    BUTTON_RANKING_OK = 24,
    FIELD_NAME_FIRST = 25,  ///< ten places
    FIELD_SCORE_FIRST = 35, ///< ten places
    BUTTON_HELP_FIRST = 45, ///< those of the help pages
};

// Text colours, RGB565.
constexpr uint16_t TEXT_WHITE = 0xFFFF;
constexpr uint16_t TEXT_YELLOW = 0xFFE0;
constexpr uint16_t TEXT_RED = 0xF800;
