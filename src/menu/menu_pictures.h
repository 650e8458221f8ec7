#pragma once

#include "game/geometry.h"
#include "gfx/image.h"
#include "menu/help_page.h"
#include "res/picture_table.h"

/// Index into the menu scene's `images`.
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
    MENU_IMAGES = 20,
};

constexpr int MENU_SET = 0; ///< the menu scene's only set of images

/// In the order of loading.
constexpr PictureRow menuPictures[] = {
    { MENU_SET, PICTURE_MAIN_MENU, "MainMenu.jpg", { SCREEN_WIDTH, SCREEN_HEIGHT }, BlitCopy },
    { MENU_SET, PICTURE_HOME_PAGE, "MainMenuHomepage.jpg", { 245, 22 }, BlitCopy },
    { MENU_SET, PICTURE_MAIN_ITEMS, "MainMenuItems.jpg", { 651, 36 }, BlitCopy },
    { MENU_SET, PICTURE_OPTIONS, "Options.jpg", { 320, 230 }, BlitCopy },
    { MENU_SET, PICTURE_OPTIONS_ITEMS, "OptionsItems.jpg", { 216, 23 }, BlitCopy },
    { MENU_SET, PICTURE_RANKING, "Ranking.jpg", { 320, 310 }, BlitCopy },
    { MENU_SET, PICTURE_HELP_FIRST, "Help%d.jpg", HELP_PICTURE, BlitCopy, nullptr, HELP_PAGES },
};
