#pragma once

#include "gfx/display.h"
#include "platform/sdl/messages.h"
#include "platform/window.h"

#include <SDL.h>
#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

/// A window with a client area of 640 x 480, as the game shows it, on SDL's driver without a screen, which is
/// 1024 x 768, and the messages that reach its procedure.
class WindowFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        setenv("SDL_VIDEODRIVER", "dummy", 1);
        setenv("SDL_RENDER_DRIVER", "software", 1);
        WNDCLASSA windowClass = {};
        windowClass.lpfnWndProc = Procedure;
        RegisterClassA(&windowClass);
        window = CreateWindowExA(0, "Test", "Test", 0, 0, 0, 640, 480, nullptr, nullptr, nullptr, nullptr);
        ASSERT_TRUE(DisplaySetMode(window, 640, 480, true));
        RunMessages();
        received.clear();
    }
    void TearDown() override
    {
        DisplayRelease();
        DestroyWindow(window);
        RunMessages();
    }

    /// Gives the window all that waits for it, in as many frames as that takes; true when the quit message was in it.
    static bool RunMessages()
    {
        MSG message = {};
        for (size_t before = received.size() + 1; before != received.size(); EndFrameOfMessages()) {
            before = received.size();
            while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
                if (!GetMessageA(&message, nullptr, 0, 0))
                    return true;
                DispatchMessageA(&message);
            }
        }
        return false;
    }
    /// The messages received so far, in order, without their words.
    static std::vector<UINT> Messages()
    {
        std::vector<UINT> messages;
        for (const MSG& one : received)
            messages.push_back(one.message);
        return messages;
    }

    /// On a keyboard of the United States.
    static void PushKey(bool down, SDL_Scancode position, int modifiers = 0)
    {
        SDL_Event event = {};
        event.key.type = down ? SDL_KEYDOWN : SDL_KEYUP;
        event.key.keysym = { position, SDL_GetKeyFromScancode(position), static_cast<Uint16>(modifiers), 0 };
        SDL_PushEvent(&event);
    }
    static void PushText(const char* text)
    {
        SDL_Event event = {};
        event.text.type = SDL_TEXTINPUT;
        SDL_strlcpy(event.text.text, text, sizeof event.text.text);
        SDL_PushEvent(&event);
    }
    static void PushWindowEvent(SDL_WindowEventID id)
    {
        SDL_Event event = {};
        event.window = { SDL_WINDOWEVENT, 0, 0, static_cast<Uint8>(id), 0, 0, 0, 0, 0 };
        SDL_PushEvent(&event);
    }
    /// A move, or the left button going down or up.
    static void PushMouse(SDL_EventType type, int x, int y)
    {
        SDL_Event event = {};
        if (type == SDL_MOUSEMOTION)
            event.motion = { type, 0, 0, 0, 0, x, y, 0, 0 };
        else
            event.button = { type, 0, 0, 0, SDL_BUTTON_LEFT, type == SDL_MOUSEBUTTONDOWN, 1, 0, x, y };
        SDL_PushEvent(&event);
    }

    HWND window = nullptr;
    inline static std::vector<MSG> received;

private:
    static LRESULT Procedure(HWND target, UINT message, WPARAM wParam, LPARAM lParam)
    {
        received.push_back({ target, message, wParam, lParam, 0, {} });
        if (message != WM_DESTROY)
            return DefWindowProcA(target, message, wParam, lParam);
        PostQuitMessage(0);
        return 0;
    }
};
