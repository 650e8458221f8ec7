#pragma once

#include "app/input.h"
#include "menu/menu_items.h"
#include "menu/section_menu.h"
#include "support/program_fixture.h"
#include "support/settings_store.h"

#include <string>

/// The menu scene, loaded and begun in the program's window, with a sound buffer for each menu sound. Nothing is
/// stored.
class MenuFixture : public ProgramFixture
{
protected:
    void SetUp() override;

    /// One frame, with the tick's capture of the still, in which that key is the last one pressed; 0: no new one.
    void Press(int key);
    /// A frame for each character, as the window's messages give it.
    void Type(const std::string& text);
    /// A frame with the left mouse button pressed in the middle of a page's item.
    template <typename Item>
    void Click(const CMenu& page, const Item* item)
    {
        input.mouseX = page.x + item->box.x + item->box.width / 2;
        input.mouseY = page.y + item->box.y + item->box.height / 2;
        input.mouseLeftDown = true;
        Press(0);
        input.mouseLeftDown = false;
    }
    void ClickMain(int button) { Click(menu.mainMenu, menu.mainMenu.FindButton(button)); }
    /// The pages that take input: m(ain), o(ptions), r(anking), 1 to 4 for help.
    std::string OpenPages() const;
    /// The settings' file.
    std::string Stored() const { return pictures.folder.ReadText(SETTINGS_FILE); }

    CSectionMenu menu;
};
