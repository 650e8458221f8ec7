#include "platform/sdl/keyboard.h"
#include "platform/sdl/window_fixture.h"

namespace
{
using Sequence = std::vector<UINT>;
using KeyboardTest = WindowFixture;

TEST(VirtualKeys, AreThoseOfWindows)
{
    constexpr struct {
        SDL_Scancode position;
        SDL_Keycode symbol;
        int modifiers;
        int code;
        const char* why;
        bool hasLatinLetters = true;
    } keys[] = {
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
    for (const auto& key : keys) {
        const SDL_Keysym symbol = { key.position, key.symbol, static_cast<Uint16>(key.modifiers), 0 };
        EXPECT_EQ(VirtualKey(symbol, key.hasLatinLetters), key.code) << key.why;
    }
}

TEST_F(KeyboardTest, GivesTextInTheAnsiCodePageBehindItsKey)
{
    PushKey(true, SDL_SCANCODE_E);
    PushText("e\xC3\xA9\xE2\x82\xAC\xD0\xB6\xF0\x9F\x90\x8D"); // e acute, euro sign, Cyrillic, a snake
    PushKey(true, SDL_SCANCODE_BACKSPACE);
    PushKey(false, SDL_SCANCODE_E);
    RunMessages();
    EXPECT_EQ(Messages(), Sequence({ WM_KEYDOWN, WM_CHAR, WM_CHAR, WM_CHAR, WM_KEYDOWN, WM_CHAR, WM_KEYUP }));
    EXPECT_EQ(received[2].wParam, 0xE9u);
    EXPECT_EQ(received[3].wParam, 0x80u);
    EXPECT_EQ(received[5].wParam, 0x08u);
}

TEST_F(KeyboardTest, KeepsAltAndF10FromThePlayerUnlessAltChoosesCharacters)
{
    const struct {
        SDL_Scancode key;
        int modifiers;
        UINT first;
        UINT last; ///< of the key and the text behind it
    } cases[] = {
        { SDL_SCANCODE_F10, 0, WM_SYSKEYDOWN, WM_CHAR },
        { SDL_SCANCODE_LALT, 0, WM_SYSKEYDOWN, WM_CHAR },
        { SDL_SCANCODE_RETURN, KMOD_LALT, WM_SYSKEYDOWN, WM_SYSKEYUP },
        { SDL_SCANCODE_RETURN, KMOD_RCTRL, WM_KEYDOWN, WM_KEYUP },
        { SDL_SCANCODE_RETURN, KMOD_LALT | KMOD_LCTRL, WM_KEYDOWN, WM_KEYUP },
        { SDL_SCANCODE_RETURN, KMOD_RALT, WM_KEYDOWN, WM_CHAR },
        { SDL_SCANCODE_RETURN, KMOD_RALT | KMOD_LCTRL, WM_KEYDOWN, WM_CHAR },
        { SDL_SCANCODE_RETURN, KMOD_LALT | KMOD_MODE, WM_KEYDOWN, WM_CHAR },
    };
    for (const auto& row : cases) {
        received.clear();
        PushKey(true, row.key, row.modifiers);
        PushKey(false, row.key, row.modifiers);
        PushText("@");
        RunMessages();
        EXPECT_EQ(received.front().message, row.first) << row.key << ", " << row.modifiers;
        EXPECT_EQ(received.back().message, row.last) << row.key << ", " << row.modifiers;
    }
}

TEST_F(KeyboardTest, ReleasesTheCodeThatWasPressedAfterNumLockChanged)
{
    PushKey(true, SDL_SCANCODE_KP_8, KMOD_NUM);
    PushKey(false, SDL_SCANCODE_KP_8);
    RunMessages();
    EXPECT_EQ(received.back().wParam, static_cast<WPARAM>(VK_NUMPAD0 + 8));
    EXPECT_EQ(received.back().lParam, 0xC0000001) << "up, and down before";
}

TEST_F(KeyboardTest, HoldsNeitherKeyNorButtonAfterTheFocusIsLostOrTheWindowMinimised)
{
    for (const SDL_WindowEventID id : { SDL_WINDOWEVENT_FOCUS_LOST, SDL_WINDOWEVENT_MINIMIZED }) {
        PushKey(true, SDL_SCANCODE_W);
        PushKey(true, SDL_SCANCODE_LALT, KMOD_LALT);
        PushKey(true, SDL_SCANCODE_RETURN, KMOD_LALT);
        PushMouse(SDL_MOUSEBUTTONDOWN, 3, 4);
        RunMessages();
        received.clear();
        Sequence expected = { WM_KEYUP, WM_KEYUP, WM_KEYUP, WM_LBUTTONUP };
        if (id == SDL_WINDOWEVENT_FOCUS_LOST) {
            PushKey(false, SDL_SCANCODE_RETURN, KMOD_LALT); // SDL's own release, which must not switch the display
            expected.insert(expected.end(), { WM_KILLFOCUS, WM_KILLFOCUS });
        }
        PushWindowEvent(id);
        PushWindowEvent(id); // each is released once
        RunMessages();
        EXPECT_EQ(Messages(), expected);
    }
}
}
