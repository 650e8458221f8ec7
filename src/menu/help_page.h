#pragma once

#include "menu/menu.h"
#include "res/picture_table.h"

/// The help pages, the same over the main menu and over the game. Pages count from 0. Their buttons' ids follow each
/// other page by page from `firstId` on: the close button, then a tab for each other page.
constexpr int HELP_PAGES = 4;
constexpr PictureSize HELP_PICTURE = { 500, 390 };

constexpr int HelpCloseId(int firstId, int page)
{
    return firstId + page * HELP_PAGES;
}
constexpr int HelpTabId(int firstId, int page, int otherPage)
{
    return HelpCloseId(firstId, page) + otherPage + (otherPage < page ? 1 : 0);
}

void AddHelpButtons(CMenu& panel, int firstId, int page);

// What an open page may ask for instead of another page.
constexpr int HELP_CLOSE = -1;
constexpr int HELP_STAY = -2;

/// After the panel's own frame: the page that its tabs ask for, or one of the above. Takes the keys that close.
int ProcessHelpPage(CMenu& panel, int firstId, int page);
