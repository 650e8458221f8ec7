#include "platform/sdl/window_fixture.h"

#include <string>

namespace
{
using Sequence = std::vector<UINT>;

class KeyboardTest : public WindowFixture
{
protected:
    static void Tap(SDL_Scancode position, SDL_Keycode symbol, int modifiers = 0)
    {
        PushKey(true, position, symbol, modifiers);
        PushKey(false, position, symbol, modifiers);
    }
    /// Holds W, Alt+Enter and the mouse button.
    void HoldAll()
    {
        PushKey(true, SDL_SCANCODE_W, SDLK_w);
        PushKey(true, SDL_SCANCODE_LALT, SDLK_LALT, KMOD_LALT);
        PushKey(true, SDL_SCANCODE_RETURN, SDLK_RETURN, KMOD_LALT);
        PushButton(true, 3, 4);
        RunMessages();
        received.clear();
    }
};
}

TEST_F(KeyboardTest, GivesTextInTheAnsiCodePageBehindItsKeyButNoneFromCommandKeys)
{
    PushKey(true, SDL_SCANCODE_E, SDLK_e);
    PushText("e");
    Tap(SDL_SCANCODE_BACKSPACE, SDLK_BACKSPACE);
    RunMessages();
    EXPECT_EQ(Messages(), Sequence({ WM_KEYDOWN, WM_CHAR, WM_KEYDOWN, WM_CHAR, WM_KEYUP }));
    PushText("\xC3\xA9\xE2\x82\xAC\xD0\xB6\xF0\x9F\x90\x8Dz"); // e acute, euro sign, Cyrillic, a snake
    PushKey(true, SDL_SCANCODE_RCTRL, SDLK_RCTRL, KMOD_RCTRL);
    PushText("1");
    PushKey(true, SDL_SCANCODE_RALT, SDLK_RALT, KMOD_RALT); // chooses characters on many layouts
    PushText("@");
    RunMessages();
    std::string characters;
    for (const Received& one : received)
        if (one.message == WM_CHAR)
            characters += static_cast<char>(one.wParam);
    EXPECT_EQ(characters, "e\b\xE9\x80z@");
}

TEST_F(KeyboardTest, KeepsAltAndF10FromThePlayer)
{
    PushKey(true, SDL_SCANCODE_LALT, SDLK_LALT, KMOD_LALT);
    Tap(SDL_SCANCODE_RETURN, SDLK_RETURN, KMOD_LALT);
    PushText("a");
    PushKey(false, SDL_SCANCODE_LALT, SDLK_LALT);
    Tap(SDL_SCANCODE_F10, SDLK_F10);
    RunMessages();
    EXPECT_EQ(Messages(),
              Sequence({ WM_SYSKEYDOWN, WM_SYSKEYDOWN, WM_SYSKEYUP, WM_SYSKEYUP, WM_SYSKEYDOWN, WM_SYSKEYUP }));
}

TEST_F(KeyboardTest, TakesAltThatChoosesCharactersAsAnOrdinaryKey)
{
    for (const int modifiers :
         { KMOD_LALT | KMOD_LCTRL, KMOD_RALT | 0, KMOD_RALT | KMOD_LCTRL, KMOD_LALT | KMOD_MODE }) {
        received.clear();
        Tap(SDL_SCANCODE_RETURN, SDLK_RETURN, modifiers);
        RunMessages();
        EXPECT_EQ(received.front().message, WM_KEYDOWN) << modifiers;
        EXPECT_EQ(received.back().message, WM_KEYUP) << "and the display is not switched";
    }
}

TEST_F(KeyboardTest, ReleasesTheCodeThatWasPressedAfterNumLockChanged)
{
    PushKey(true, SDL_SCANCODE_KP_8, SDLK_KP_8, KMOD_NUM);
    PushKey(false, SDL_SCANCODE_KP_8, SDLK_KP_8, 0);
    RunMessages();
    EXPECT_EQ(received.back().message, WM_KEYUP);
    EXPECT_EQ(received.back().wParam, static_cast<WPARAM>(VK_NUMPAD0 + 8));
}

/// SDL releases the keys itself: before it tells of the lost focus, and behind a minimised window.
TEST_F(KeyboardTest, HoldsNeitherKeyNorButtonAfterTheFocusIsLostOrTheWindowMinimised)
{
    HoldAll();
    PushKey(false, SDL_SCANCODE_RETURN, SDLK_RETURN, KMOD_LALT);
    PushWindowEvent(SDL_WINDOWEVENT_FOCUS_LOST);
    PushWindowEvent(SDL_WINDOWEVENT_FOCUS_LOST);
    RunMessages();
    EXPECT_EQ(Messages(), Sequence({ WM_KEYUP, WM_KEYUP, WM_KEYUP, WM_LBUTTONUP, WM_KILLFOCUS, WM_KILLFOCUS }))
        << "each is released once, and Alt+Enter does not switch";
    HoldAll();
    PushWindowEvent(SDL_WINDOWEVENT_MINIMIZED);
    PushKey(false, SDL_SCANCODE_RETURN, SDLK_RETURN, KMOD_LALT);
    RunMessages();
    EXPECT_EQ(Messages(), Sequence({ WM_KEYUP, WM_KEYUP, WM_KEYUP, WM_LBUTTONUP }));
}
