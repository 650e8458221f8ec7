#include "menu/menu.h"

#include "gfx/error.h"

#include <new>
#include <utility>

namespace
{
template <typename Item>
Item* FindItem(Item* items, int count, int id)
{
    for (int i = 0; i < count; ++i) {
        if (items[i].id == id)
            return &items[i];
    }
    return nullptr;
}
}

CMenu::~CMenu()
{
    MenuFree();
}

bool CMenu::MenuCreate(int menuX, int menuY, CImage* picture)
{
    MenuFree();
    x = menuX;
    y = menuY;
    background = picture;
    buttons.reset(new (std::nothrow) MenuButton[MAX_BUTTONS]);
    toggles.reset(new (std::nothrow) MenuToggle[MAX_TOGGLES]);
    texts.reset(new (std::nothrow) MenuText[MAX_TEXTS]);
    return (buttons != nullptr && toggles != nullptr && texts != nullptr) || FailWith(ENGINE_ALLOCATE_MEMORY);
}

void CMenu::MenuFree()
{
    buttons.reset();
    toggles.reset();
    texts.reset();
    buttonCount = 0;
    toggleCount = 0;
    textCount = 0;
}

bool CMenu::AddButton(const MenuButton& button)
{
    if (buttons == nullptr || buttonCount == MAX_BUTTONS)
        return false;
    buttons[buttonCount++] = button;
    return true;
}

bool CMenu::AddToggle(const MenuToggle& toggle)
{
    if (toggles == nullptr || toggleCount == MAX_TOGGLES)
        return false;
    toggles[toggleCount++] = toggle;
    return true;
}

bool CMenu::AddText(MenuText text)
{
    if (texts == nullptr || textCount == MAX_TEXTS)
        return false;
    text.text.reset(new (std::nothrow) char[MENU_TEXT_SIZE]());
    if (text.text == nullptr)
        return FailWith(ENGINE_ALLOCATE_MEMORY);
    texts[textCount++] = std::move(text);
    return true;
}

MenuButton* CMenu::FindButton(int id)
{
    return FindItem(buttons.get(), buttonCount, id);
}

MenuToggle* CMenu::FindToggle(int id)
{
    return FindItem(toggles.get(), toggleCount, id);
}

MenuText* CMenu::FindText(int id)
{
    return FindItem(texts.get(), textCount, id);
}
