#pragma once

#include "actors/status_bar.h"

// How the status bar's own files number its panels, buttons and texts.

/// The panels in the order in which they are drawn and handled.
enum PanelId : int {
    PANEL_LEFT,
    PANEL_PAUSED,
    PANEL_CONFIRM,
    PANEL_LEVEL_CLEARED,
    PANEL_NEXT_LEVEL,
    PANEL_HELP,
    PANEL_GAME_OVER = PANEL_HELP + HELP_PAGES,
};

/// Buttons and texts of the panels.
enum PanelItemId : int {
    BUTTON_PAUSE = 0,
    BUTTON_HELP = 1, ///< on the strip and on the paused panel
    BUTTON_QUIT = 2,
    BUTTON_RESUME = 3,
    BUTTON_YES = 4,
    BUTTON_NO = 5,
    TEXT_LEVEL = 6,
    TEXT_TARGET = 7,
    BUTTON_HELP_FIRST = 8, ///< those of the help pages
};
