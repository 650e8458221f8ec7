#include "platform/sdl/keyboard.h"
#include "platform/window.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr int VK_CLEAR = 0x0C;
constexpr int VK_OEM_102 = 0xE2;

constexpr SDL_Keycode DOTLESS_I = 0x131;

struct KeyCode {
    SDL_Scancode position;
    int code;
};

/// A run of neighbouring positions with neighbouring codes.
struct KeyRange {
    SDL_Scancode first;
    SDL_Scancode last;
    int code;
};

/// A key of the numeric keypad: a digit with NumLock, an editing key without.
struct KeypadKey {
    SDL_Scancode position;
    int digit;
    int editing;
};

/// A punctuation key by its character on the layout.
struct PunctuationKey {
    char character;
    int code;
};

/// Letters here are for layouts without Latin ones, or with others among them.
constexpr KeyRange keyRanges[] = {
    { SDL_SCANCODE_A, SDL_SCANCODE_Z, 'A' },
    { SDL_SCANCODE_1, SDL_SCANCODE_9, '1' },
    { SDL_SCANCODE_F1, SDL_SCANCODE_F12, VK_F1 },
    { SDL_SCANCODE_F13, SDL_SCANCODE_F24, VK_F12 + 1 },
};

constexpr KeyCode keyCodes[] = {
    { SDL_SCANCODE_0, '0' },
    { SDL_SCANCODE_RETURN, VK_RETURN },
    { SDL_SCANCODE_RETURN2, VK_RETURN },
    { SDL_SCANCODE_KP_ENTER, VK_RETURN },
    { SDL_SCANCODE_ESCAPE, VK_ESCAPE },
    { SDL_SCANCODE_BACKSPACE, VK_BACK },
    { SDL_SCANCODE_TAB, VK_TAB },
    { SDL_SCANCODE_SPACE, VK_SPACE },
    { SDL_SCANCODE_LEFT, VK_LEFT },
    { SDL_SCANCODE_UP, VK_UP },
    { SDL_SCANCODE_RIGHT, VK_RIGHT },
    { SDL_SCANCODE_DOWN, VK_DOWN },
    { SDL_SCANCODE_INSERT, VK_INSERT },
    { SDL_SCANCODE_DELETE, VK_DELETE },
    { SDL_SCANCODE_HOME, VK_HOME },
    { SDL_SCANCODE_END, VK_END },
    { SDL_SCANCODE_PAGEUP, VK_PRIOR },
    { SDL_SCANCODE_PAGEDOWN, VK_NEXT },
    { SDL_SCANCODE_LSHIFT, VK_SHIFT },
    { SDL_SCANCODE_RSHIFT, VK_SHIFT },
    { SDL_SCANCODE_LCTRL, VK_CONTROL },
    { SDL_SCANCODE_RCTRL, VK_CONTROL },
    { SDL_SCANCODE_LALT, VK_MENU },
    { SDL_SCANCODE_RALT, VK_MENU },
    { SDL_SCANCODE_LGUI, VK_LWIN },
    { SDL_SCANCODE_RGUI, VK_RWIN },
    { SDL_SCANCODE_APPLICATION, VK_APPS },
    { SDL_SCANCODE_PRINTSCREEN, VK_SNAPSHOT },
    { SDL_SCANCODE_PAUSE, VK_PAUSE },
    { SDL_SCANCODE_CAPSLOCK, VK_CAPITAL },
    { SDL_SCANCODE_NUMLOCKCLEAR, VK_NUMLOCK },
    { SDL_SCANCODE_SCROLLLOCK, VK_SCROLL },
    { SDL_SCANCODE_KP_MULTIPLY, VK_MULTIPLY },
    { SDL_SCANCODE_KP_PLUS, VK_ADD },
    { SDL_SCANCODE_KP_MINUS, VK_SUBTRACT },
    { SDL_SCANCODE_KP_DIVIDE, VK_DIVIDE },
    { SDL_SCANCODE_SEMICOLON, 0xBA },
    { SDL_SCANCODE_EQUALS, 0xBB },
    { SDL_SCANCODE_COMMA, 0xBC },
    { SDL_SCANCODE_MINUS, 0xBD },
    { SDL_SCANCODE_PERIOD, 0xBE },
    { SDL_SCANCODE_SLASH, 0xBF },
    { SDL_SCANCODE_GRAVE, 0xC0 },
    { SDL_SCANCODE_LEFTBRACKET, 0xDB },
    { SDL_SCANCODE_BACKSLASH, 0xDC },
    { SDL_SCANCODE_NONUSHASH, 0xDC },
    { SDL_SCANCODE_RIGHTBRACKET, 0xDD },
    { SDL_SCANCODE_APOSTROPHE, 0xDE },
    { SDL_SCANCODE_NONUSBACKSLASH, VK_OEM_102 },
};

constexpr KeypadKey keypadKeys[] = {
    { SDL_SCANCODE_KP_0, VK_NUMPAD0 + 0, VK_INSERT },  { SDL_SCANCODE_KP_1, VK_NUMPAD0 + 1, VK_END },
    { SDL_SCANCODE_KP_2, VK_NUMPAD0 + 2, VK_DOWN },    { SDL_SCANCODE_KP_3, VK_NUMPAD0 + 3, VK_NEXT },
    { SDL_SCANCODE_KP_4, VK_NUMPAD0 + 4, VK_LEFT },    { SDL_SCANCODE_KP_5, VK_NUMPAD0 + 5, VK_CLEAR },
    { SDL_SCANCODE_KP_6, VK_NUMPAD0 + 6, VK_RIGHT },   { SDL_SCANCODE_KP_7, VK_NUMPAD0 + 7, VK_HOME },
    { SDL_SCANCODE_KP_8, VK_NUMPAD0 + 8, VK_UP },      { SDL_SCANCODE_KP_9, VK_NUMPAD0 + 9, VK_PRIOR },
    { SDL_SCANCODE_KP_PERIOD, VK_DECIMAL, VK_DELETE }, { SDL_SCANCODE_KP_COMMA, VK_DECIMAL, VK_DELETE },
};

constexpr PunctuationKey punctuationKeys[] = {
    { ';', 0xBA }, { '=', 0xBB }, { ',', 0xBC }, { '-', 0xBD },  { '.', 0xBE },  { '/', 0xBF },
    { '`', 0xC0 }, { '[', 0xDB }, { ']', 0xDD }, { '\\', 0xDC }, { '\'', 0xDE },
};

bool IsLetter(SDL_Keycode symbol)
{
    return symbol >= 'a' && symbol <= 'z';
}

bool IsLetterPosition(SDL_Scancode position)
{
    return position >= SDL_SCANCODE_A && position <= SDL_SCANCODE_Z;
}

int CodeByPosition(SDL_Scancode position)
{
    for (const KeyRange& range : keyRanges)
        if (position >= range.first && position <= range.last)
            return range.code + (position - range.first);
    const auto isThere = [position](const KeyCode& row) { return row.position == position; };
    const auto* key = std::find_if(std::begin(keyCodes), std::end(keyCodes), isThere);
    return key == std::end(keyCodes) ? 0 : key->code;
}
}

int VirtualKey(const SDL_Keysym& key, bool hasLatinLetters)
{
    if (IsLetter(key.sym))
        return 'A' + (key.sym - 'a');
    if (key.sym == DOTLESS_I) // Turkish: it is the key of I, wherever it is
        return 'I';
    const auto isThere = [&key](const KeypadKey& row) { return row.position == key.scancode; };
    const auto* keypad = std::find_if(std::begin(keypadKeys), std::end(keypadKeys), isThere);
    if (keypad != std::end(keypadKeys))
        return key.mod & KMOD_NUM ? keypad->digit : keypad->editing;
    // Where a layout with Latin letters has punctuation in a letter's place, that letter is elsewhere, its code taken.
    if (hasLatinLetters && IsLetterPosition(key.scancode)) {
        const auto isMark = [&key](const PunctuationKey& row) { return row.character == key.sym; };
        const auto* mark = std::find_if(std::begin(punctuationKeys), std::end(punctuationKeys), isMark);
        if (mark != std::end(punctuationKeys))
            return mark->code;
    }
    return CodeByPosition(key.scancode);
}
