#include "platform/sdl/window_fixture.h"

#include <string>

namespace
{
using Sequence = std::vector<UINT>;
using KeyboardTest = WindowFixture;

TEST_F(KeyboardTest, GivesTextInTheAnsiCodePageBehindItsKey)
{
    PushKey(true, SDL_SCANCODE_E);
    PushText("e\xC3\xA9\xE2\x82\xAC\xD0\xB6\xF0\x9F\x90\x8D"); // e acute, euro sign, Cyrillic, a snake
    PushKey(true, SDL_SCANCODE_BACKSPACE);
    PushKey(false, SDL_SCANCODE_E);
    RunMessages();
    EXPECT_EQ(Messages(), Sequence({ WM_KEYDOWN, WM_CHAR, WM_CHAR, WM_CHAR, WM_KEYDOWN, WM_CHAR, WM_KEYUP }));
    const std::string characters = { static_cast<char>(received[1].wParam), static_cast<char>(received[2].wParam),
                                     static_cast<char>(received[3].wParam), static_cast<char>(received[5].wParam) };
    EXPECT_EQ(characters, "e\xE9\x80\b");
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
    EXPECT_EQ(received.back().message, WM_KEYUP);
    EXPECT_EQ(received.back().wParam, static_cast<WPARAM>(VK_NUMPAD0 + 8));
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
