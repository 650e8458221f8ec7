#include "menu/menu.h"

#include "app/input.h"
#include "platform/window.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace
{
// The cursor shows in the first frames of each period.
constexpr int CURSOR_PERIOD = 10;
constexpr int CURSOR_SHOWN = 6;
constexpr char CURSOR[] = "|";

/// The codes that a key-capture field takes besides letters and the numeric keypad's digits.
struct NamedKey {
    int code;
    const char* name;
};
constexpr NamedKey namedKeys[] = {
    { VK_UP, "Up" },
    { VK_DOWN, "Down" },
    { VK_LEFT, "Left" },
    { VK_RIGHT, "Right" },
};

bool IsCharacterKey(int key)
{
    return (key >= 'A' && key <= 'Z') || (key >= VK_NUMPAD0 && key <= VK_NUMPAD9);
}

/// Writes the key's name into the field; false for a key that has none, and the text stays.
bool ShowKey(MenuText& item, int key)
{
    if (IsCharacterKey(key)) {
        item.text[0] = static_cast<char>(key);
        item.text[1] = 0;
        return true;
    }
    for (const NamedKey& named : namedKeys) {
        if (named.code == key) {
            std::snprintf(item.text, sizeof item.text, "%s", named.name);
            return true;
        }
    }
    return false;
}

void CaptureKey(MenuText& item)
{
    if (!ShowKey(item, input.lastKeyDown))
        return;
    item.key = input.lastKeyDown;
    item.changed = true;
    input.lastKeyDown = 0;
}

bool IsNameCharacter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_' ||
           c == '\'' || c == '.';
}

void DeleteLast(MenuText& item)
{
    const size_t length = std::strlen(item.text);
    if (length == 0)
        return;
    item.text[length - 1] = 0;
    item.changed = true;
    input.lastKeyDown = 0;
}

/// A full field leaves key and character to others.
void Append(MenuText& item, char c)
{
    const size_t length = std::strlen(item.text);
    if (static_cast<int>(length) >= std::min(item.maxLength, MENU_TEXT_SIZE - 1))
        return;
    item.text[length] = c;
    item.text[length + 1] = 0;
    item.changed = true;
    input.lastKeyDown = 0;
    input.lastChar = 0;
}

void TypeText(MenuText& item)
{
    if (input.lastKeyDown == VK_BACK)
        DeleteLast(item);
    else if (IsNameCharacter(input.lastChar) || input.lastKeyDown == VK_SPACE)
        Append(item, input.lastChar);
}

int RoomLeft(const CMenu& menu, const MenuText& item)
{
    return menu.x + item.box.x + (item.box.width - item.room) / 2;
}

void DrawLine(CImage& target, const MenuText& item, POINT place, uint16_t colour, bool hasCursor)
{
    const char* text = item.text;
    item.font->TextDraw(target, place.x, place.y, colour, text);
    if (hasCursor)
        item.font->TextDraw(target, place.x + item.font->TextWidth(text), place.y, colour, CURSOR);
}
}

/// Where the text begins. One that is wider than its room shows its end while it is typed, else its beginning.
int CMenu::TextLeft(const MenuText& item) const
{
    const int textWidth = item.font->TextWidth(item.text);
    int left = x + item.box.x;
    if (item.align == ALIGN_CENTRE)
        left += (item.box.width - textWidth) / 2;
    else if (item.align != ALIGN_LEFT)
        left += item.box.width - textWidth;
    if (item.room == 0)
        return left;
    const int roomLeft = RoomLeft(*this, item);
    if (TakesKeyboard(item))
        return std::min(left, roomLeft + item.room - textWidth - item.font->TextWidth(CURSOR));
    return std::max(left, roomLeft);
}

void CMenu::DrawTextItem(CImage& target, const MenuText& item, uint16_t colour, bool hasCursor) const
{
    const int left = TextLeft(item);
    const int top = y + item.box.y + (item.box.height - item.font->height) / 2;
    if (item.room == 0) {
        DrawLine(target, item, { left, top }, colour, hasCursor);
        return;
    }
    const int roomLeft = RoomLeft(*this, item);
    CImage room;
    if (room.CreateView(target, roomLeft, 0, item.room, target.height))
        DrawLine(room, item, { left - roomLeft + room.x, top }, colour, hasCursor);
}

void CMenu::DrawTexts(CImage& target)
{
    for (int i = 0; i < textCount; ++i) {
        MenuText& item = texts[i];
        if (!item.isVisible)
            continue;
        if (item.image != nullptr)
            item.image->Draw(target, x + item.box.x, y + item.box.y);
        if (item.mode != TEXT_ENTRY)
            ShowKey(item, item.key);
        if (!TakesKeyboard(item))
            DrawTextItem(target, item, item.colour, false);
    }
}

void CMenu::ProcessTexts(CImage& target)
{
    for (int i = 0; i < textCount; ++i) {
        MenuText& item = texts[i];
        if (!item.focused || !item.isVisible)
            continue;
        if (item.isEnabled && item.mode != TEXT_ENTRY)
            CaptureKey(item);
        else if (item.isEnabled)
            TypeText(item);
        const bool hasCursor = item.mode == TEXT_ENTRY && cursorBlink % CURSOR_PERIOD < CURSOR_SHOWN;
        DrawTextItem(target, item, item.focusColour, hasCursor);
        ++cursorBlink;
    }
}
