#include "menu/menu.h"

#include "gfx/error.h"
#include "sound/sound.h"

#include <new>

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

bool CMenu::AddButton(int id, int boxX, int boxY, int boxWidth, int boxHeight, CImage* image, CImage* hoverImage,
                      CImage* pressedImage, int hoverSound, int clickSound)
{
    if (buttons == nullptr || buttonCount == MAX_BUTTONS)
        return false;
    buttons[buttonCount++] = { .id = id,
                               .x = boxX,
                               .y = boxY,
                               .width = boxWidth,
                               .height = boxHeight,
                               .image = image,
                               .hoverImage = hoverImage,
                               .pressedImage = pressedImage,
                               .hoverSound = hoverSound,
                               .clickSound = clickSound };
    return true;
}

bool CMenu::AddHotArea(int id, const MenuBox& box)
{
    return AddButton(id, box.x, box.y, box.width, box.height, nullptr, nullptr, nullptr, SOUND_NONE, SOUND_NONE);
}

bool CMenu::AddToggle(int id, int group, int boxX, int boxY, int boxWidth, int boxHeight, CImage* image,
                      CImage* hoverImage, CImage* checkedImage, int hoverSound, int clickSound)
{
    if (toggles == nullptr || toggleCount == MAX_TOGGLES)
        return false;
    toggles[toggleCount++] = { .id = id,
                               .group = group,
                               .x = boxX,
                               .y = boxY,
                               .width = boxWidth,
                               .height = boxHeight,
                               .image = image,
                               .hoverImage = hoverImage,
                               .checkedImage = checkedImage,
                               .hoverSound = hoverSound,
                               .clickSound = clickSound };
    return true;
}

bool CMenu::AddText(int id, int boxX, int boxY, int boxWidth, int boxHeight, CImage* image, CTextImage* font,
                    uint16_t colour, uint16_t focusColour, int align, int mode, int maxLength)
{
    if (texts == nullptr || textCount == MAX_TEXTS)
        return false;
    std::unique_ptr<char[]> buffer(new (std::nothrow) char[MENU_TEXT_SIZE]());
    if (buffer == nullptr)
        return FailWith(ENGINE_ALLOCATE_MEMORY);
    texts[textCount++] = { .id = id,
                           .x = boxX,
                           .y = boxY,
                           .width = boxWidth,
                           .height = boxHeight,
                           .image = image,
                           .font = font,
                           .colour = colour,
                           .focusColour = focusColour,
                           .text = std::move(buffer),
                           .maxLength = maxLength,
                           .align = align,
                           .mode = mode };
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
