#include "platform/sdl/window_fixture.h"

#include <string>

namespace
{
class KeyboardTest : public WindowFixture
{
protected:
    std::string Characters() const
    {
        std::string characters;
        for (const Received& one : received)
            if (one.message == WM_CHAR)
                characters += static_cast<char>(one.wParam);
        return characters;
    }
};

using Sequence = std::vector<UINT>;
}

TEST_F(KeyboardTest, GivesTheCharacterRightBehindItsKey)
{
    PushKey(true, SDL_SCANCODE_E, SDLK_e);
    PushText("e");
    PushKey(true, SDL_SCANCODE_BACKSPACE, SDLK_BACKSPACE);
    PushKey(false, SDL_SCANCODE_E, SDLK_e);
    RunMessages();
    EXPECT_EQ(Messages(), Sequence({ WM_KEYDOWN, WM_CHAR, WM_KEYDOWN, WM_CHAR, WM_KEYUP }));
    EXPECT_EQ(received[0].wParam, 'E');
    EXPECT_EQ(Characters(), "e\b");
}

TEST_F(KeyboardTest, KeepsAltAndF10FromThePlayer)
{
    PushKey(true, SDL_SCANCODE_LALT, SDLK_LALT, KMOD_LALT);
    PushKey(true, SDL_SCANCODE_RETURN, SDLK_RETURN, KMOD_LALT);
    PushKey(false, SDL_SCANCODE_RETURN, SDLK_RETURN, KMOD_LALT);
    PushKey(true, SDL_SCANCODE_A, SDLK_a, KMOD_LALT);
    PushText("a");
    PushKey(false, SDL_SCANCODE_A, SDLK_a, KMOD_LALT);
    PushKey(false, SDL_SCANCODE_LALT, SDLK_LALT);
    PushKey(true, SDL_SCANCODE_F10, SDLK_F10);
    PushKey(false, SDL_SCANCODE_F10, SDLK_F10);
    RunMessages();
    EXPECT_EQ(Messages(), Sequence({ WM_SYSKEYDOWN, WM_SYSKEYDOWN, WM_SYSKEYUP, WM_SYSKEYDOWN, WM_SYSKEYUP, WM_SYSKEYUP,
                                     WM_SYSKEYDOWN, WM_SYSKEYUP }));
}

TEST_F(KeyboardTest, TakesAltThatChoosesCharactersAsAnOrdinaryKey)
{
    for (const int modifiers :
         { KMOD_LALT | KMOD_LCTRL, KMOD_RALT | 0, KMOD_RALT | KMOD_LCTRL, KMOD_LALT | KMOD_MODE }) {
        PushKey(true, SDL_SCANCODE_RETURN, SDLK_RETURN, modifiers);
        PushKey(false, SDL_SCANCODE_RETURN, SDLK_RETURN, modifiers);
        RunMessages();
        EXPECT_EQ(received.front().message, WM_KEYDOWN) << modifiers;
        EXPECT_EQ(received.back().message, WM_KEYUP) << "and the display is not switched";
        received.clear();
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

TEST_F(KeyboardTest, HoldsNeitherKeyNorButtonAfterTheFocusIsLostOrTheWindowMinimised)
{
    for (const SDL_WindowEventID id : { SDL_WINDOWEVENT_FOCUS_LOST, SDL_WINDOWEVENT_MINIMIZED }) {
        const bool isFocus = id == SDL_WINDOWEVENT_FOCUS_LOST;
        const auto pushSdlsOwnRelease = [] { PushKey(false, SDL_SCANCODE_RETURN, SDLK_RETURN, KMOD_LALT); };
        PushKey(true, SDL_SCANCODE_W, SDLK_w);
        PushKey(true, SDL_SCANCODE_LALT, SDLK_LALT, KMOD_LALT);
        PushKey(true, SDL_SCANCODE_RETURN, SDLK_RETURN, KMOD_LALT);
        PushButton(true, 3, 4);
        RunMessages();
        received.clear();
        if (isFocus)
            pushSdlsOwnRelease();
        PushWindowEvent(id);
        if (!isFocus)
            pushSdlsOwnRelease();
        RunMessages();
        Sequence expected = { WM_KEYUP, WM_KEYUP, WM_KEYUP, WM_LBUTTONUP };
        if (isFocus)
            expected.push_back(WM_KILLFOCUS);
        EXPECT_EQ(Messages(), expected) << "and Alt+Enter does not switch";
        received.clear();
        PushWindowEvent(id);
        RunMessages();
        EXPECT_EQ(received.size(), isFocus ? 1u : 0u) << "each is released once";
    }
}

TEST_F(KeyboardTest, GivesTextInTheAnsiCodePageButNoneFromCommandKeys)
{
    PushText("\xC3\xA9\xE2\x82\xAC\xD0\xB6\xF0\x9F\x90\x8Dz"); // e acute, euro sign, Cyrillic, a snake
    PushKey(true, SDL_SCANCODE_RCTRL, SDLK_RCTRL, KMOD_RCTRL);
    PushText("1");
    PushKey(false, SDL_SCANCODE_RCTRL, SDLK_RCTRL);
    PushKey(true, SDL_SCANCODE_RALT, SDLK_RALT, KMOD_RALT); // chooses characters on many layouts
    PushText("@");
    RunMessages();
    EXPECT_EQ(Characters(), "\xE9\x80z@");
}
