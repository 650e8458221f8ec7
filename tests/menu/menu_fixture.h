#pragma once

#include "app/globals.h"
#include "menu/section_menu.h"
#include "support/game_fixture.h"
#include "support/settings_store.h"
#include "support/test_pictures.h"

#include <string>

/// The menu scene, loaded and begun, with stand-in pictures, a window, a sound buffer for each menu sound and a
/// settings of its own, in which nothing is stored.
class MenuFixture : public GameFixture
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// One frame, with the tick's capture of the still.
    void Frame();
    /// A frame in which that key is the last one pressed.
    void Press(int key);
    /// A frame for each character, as the window's messages give it.
    void Type(const std::string& text);
    /// A frame with the left mouse button pressed in the middle of a page's item.
    template <typename Item>
    void Click(const CMenu& page, const Item* item)
    {
        input.mouseX = page.x + item->x + item->width / 2;
        input.mouseY = page.y + item->y + item->height / 2;
        input.mouseLeftDown = true;
        Frame();
        input.mouseLeftDown = false;
    }
    /// The pages that take input, by name, in the order main, options, ranking, help1 to help4; "+" between them.
    std::string OpenPages() const;
    std::string Log() const { return pictures.folder.ReadText("Log.txt"); }

    TestPictures pictures;
    CSectionMenu menu;
};
