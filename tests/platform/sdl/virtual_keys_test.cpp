#include "platform/sdl/keyboard.h"
#include "platform/window.h"

#include <gtest/gtest.h>

namespace
{
struct KeyCase {
    SDL_Scancode position;
    SDL_Keycode symbol;
    int modifiers;
    int code;
    const char* why;
    bool hasLatinLetters = true;
};

constexpr KeyCase keys[] = {
    { SDL_SCANCODE_Q, SDLK_a, 0, 'A', "French: the layout says which letter" },
    { SDL_SCANCODE_SEMICOLON, SDLK_m, 0, 'M', "French: a letter in a mark's place" },
    { SDL_SCANCODE_A, 0x0444, 0, 'A', "Russian: no Latin letter, so the place counts", false },
    { SDL_SCANCODE_W, SDLK_QUOTE, 0, 'W', "Hebrew: nor for marks in letters' places", false },
    { SDL_SCANCODE_R, 0x0131, 0, 'I', "Turkish F: the key of I has no dot" },
    { SDL_SCANCODE_Q, SDLK_QUOTE, 0, 0xDE, "Dvorak: a mark in a letter's place is not that letter" },
    { SDL_SCANCODE_SEMICOLON, 0xF6, 0, 0xBA, "German: a letter that Windows has no code for" },
    { SDL_SCANCODE_1, SDLK_AMPERSAND, 0, '1', "French: digits need Shift but have their code without" },
    { SDL_SCANCODE_9, SDLK_9, 0, '9', "the last digit of the run" },
    { SDL_SCANCODE_0, SDLK_0, 0, '0', "nought comes behind nine on the keyboard, before one in the codes" },
    { SDL_SCANCODE_KP_0, SDLK_KP_0, KMOD_NUM, VK_NUMPAD0, "keypad digit with NumLock" },
    { SDL_SCANCODE_KP_4, SDLK_KP_4, 0, VK_LEFT, "keypad arrow without NumLock" },
    { SDL_SCANCODE_F13, SDLK_F13, 0, VK_F12 + 1, "the second run of function keys follows the first" },
    { SDL_SCANCODE_F24, SDLK_F24, 0, VK_F24, "and ends at the last" },
    { SDL_SCANCODE_UNKNOWN, 0, 0, 0, "a key that SDL does not know" },
};

TEST(VirtualKeys, AreThoseOfWindows)
{
    for (const KeyCase& key : keys) {
        const SDL_Keysym symbol = { key.position, key.symbol, static_cast<Uint16>(key.modifiers), 0 };
        EXPECT_EQ(VirtualKey(symbol, key.hasLatinLetters), key.code) << key.why;
    }
}
}
