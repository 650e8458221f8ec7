#include "menu/menu.h"

#include "app/input.h"
#include "platform/frame_hints.h"
#include "sound/sound.h"

#include <span>

namespace
{
// What buttons and toggles have in common.

template <typename Item>
std::span<Item> ItemsOf(Item* items, int count)
{
    return { items, static_cast<size_t>(count) };
}

/// Its edges belong to it.
template <typename Item>
RECT AreaOf(const CMenu& menu, const Item& item)
{
    const int left = menu.x + item.box.x;
    const int top = menu.y + item.box.y;
    return { left, top, left + item.box.width, top + item.box.height };
}

bool IsUnderMouse(const RECT& area)
{
    return input.mouseX >= area.left && input.mouseX <= area.right && input.mouseY >= area.top &&
           input.mouseY <= area.bottom;
}

template <typename Item>
void DrawAt(CImage& target, const CMenu& menu, const Item& item, CImage* image)
{
    if (image != nullptr)
        image->Draw(target, menu.x + item.box.x, menu.y + item.box.y);
}

/// A stopped sound keeps its position: one that still plays goes on from there, one that has ended starts again.
void StopAndPlay(int sound)
{
    if (sound == SOUND_NONE)
        return;
    SoundStop(sound);
    SoundPlay(sound, false);
}

/// Lights what the mouse is on. Returns the item hovered, the last of several, after its hover sound when the mouse
/// has just come onto it; `hoveredId` remembers it between frames.
template <typename Item>
Item* Hover(CImage& target, const CMenu& menu, std::span<Item> items, CImage* Item::*pressedImage, int32_t& hoveredId)
{
    Item* hovered = nullptr;
    for (Item& item : items) {
        if (!item.isVisible || !item.isEnabled)
            continue;
        const RECT area = AreaOf(menu, item);
        TellClickable(area);
        if (!IsUnderMouse(area))
            continue;
        hovered = &item;
        const bool isPressed = input.mouseLeftDown && item.*pressedImage != nullptr;
        DrawAt(target, menu, item, isPressed ? item.*pressedImage : item.hoverImage);
    }
    const int32_t id = hovered != nullptr ? hovered->id : -1;
    if (hovered != nullptr && id != hoveredId)
        StopAndPlay(hovered->hoverSound);
    hoveredId = id;
    return hovered;
}

/// Takes the mouse press for the item, so that it acts once.
template <typename Item>
bool TakeClick(const Item* hovered)
{
    if (hovered == nullptr || !input.mouseLeftDown)
        return false;
    StopAndPlay(hovered->clickSound);
    input.mouseLeftDown = false;
    return true;
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

void CMenu::MenuProcess(CImage& target)
{
    for (MenuButton& button : ItemsOf(buttons, buttonCount))
        button.clicked = false;
    for (MenuText& item : ItemsOf(texts, textCount))
        item.changed = false;
    if (!isVisible)
        return;
    if (background != nullptr)
        background->Draw(target, x, y);
    DrawButtons(target);
    DrawToggles(target);
    DrawTexts(target);
    if (!isActive)
        return;
    ProcessButtons(target);
    ProcessToggles(target);
    ProcessTexts(target);
}

void CMenu::DrawButtons(CImage& target) const
{
    for (const MenuButton& button : ItemsOf(buttons, buttonCount)) {
        if (button.isVisible)
            DrawAt(target, *this, button, button.image);
    }
}

void CMenu::DrawToggles(CImage& target) const
{
    for (const MenuToggle& toggle : ItemsOf(toggles, toggleCount)) {
        if (toggle.isVisible)
            DrawAt(target, *this, toggle, toggle.checked && toggle.checkedImage ? toggle.checkedImage : toggle.image);
    }
}

void CMenu::ProcessButtons(CImage& target)
{
    MenuButton* hovered = Hover(target, *this, ItemsOf(buttons, buttonCount), &MenuButton::pressedImage, hoveredButton);
    if (TakeClick(hovered))
        hovered->clicked = true;
}

void CMenu::ProcessToggles(CImage& target)
{
    MenuToggle* hovered = Hover(target, *this, ItemsOf(toggles, toggleCount), &MenuToggle::checkedImage, hoveredToggle);
    if (!TakeClick(hovered))
        return;
    for (MenuToggle& toggle : ItemsOf(toggles, toggleCount)) {
        if (toggle.group == hovered->group)
            toggle.checked = false;
    }
    hovered->checked = true;
}
