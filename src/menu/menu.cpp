#include "menu/menu.h"

#include <algorithm>

namespace
{
template <typename Item, int capacity>
bool AddItem(Item (&items)[capacity], int32_t& count, const Item& item)
{
    if (count == capacity)
        return false;
    items[count++] = item;
    return true;
}

template <typename Item>
Item* FindItem(Item* items, int count, int id)
{
    Item* item = std::find_if(items, items + count, [id](const Item& each) { return each.id == id; });
    return item == items + count ? nullptr : item;
}
}

bool CMenu::MenuCreate(int menuX, int menuY, CImage* picture)
{
    MenuFree();
    x = menuX;
    y = menuY;
    background = picture;
    return true;
}

void CMenu::MenuFree()
{
    buttonCount = toggleCount = textCount = 0;
}

bool CMenu::AddButton(const MenuButton& button)
{
    return AddItem(buttons, buttonCount, button);
}

bool CMenu::AddToggle(const MenuToggle& toggle)
{
    return AddItem(toggles, toggleCount, toggle);
}

bool CMenu::AddText(const MenuText& text)
{
    return AddItem(texts, textCount, text);
}

MenuButton* CMenu::FindButton(int id)
{
    return FindItem(buttons, buttonCount, id);
}

MenuToggle* CMenu::FindToggle(int id)
{
    return FindItem(toggles, toggleCount, id);
}

MenuText* CMenu::FindText(int id)
{
    return FindItem(texts, textCount, id);
}
