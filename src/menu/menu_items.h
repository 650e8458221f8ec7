#pragma once

#include <cstdint>

/// What the menu scene's pages are made of: ids of items.

/// Ids of the pages' items; those of other panels have a scope of their own.
namespace menu_items
{
enum Id : int {
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
}

// Text colours, RGB565.
constexpr uint16_t TEXT_WHITE = 0xFFFF;
constexpr uint16_t TEXT_YELLOW = 0xFFE0;
constexpr uint16_t TEXT_RED = 0xF800;
