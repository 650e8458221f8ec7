#pragma once

#include "platform/window.h"

#include <SDL.h>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

/// What a window procedure was given.
struct Received {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

/// A shown window with a client area of 640 x 480 on SDL's driver without a screen, which is 1024 x 768, and the
/// messages that reach its procedure.
class WindowFixture : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Gives the window all that waits for it, in as many frames as that takes; true when the quit message was in it.
    bool RunMessages();
    /// The messages received so far, in order, without their words.
    static std::vector<UINT> Messages();

    /// On a keyboard of the United States.
    static void PushKey(bool down, SDL_Scancode position, int modifiers = 0);
    static void PushText(const char* text);
    static void PushWindowEvent(SDL_WindowEventID id);
    /// A move, or the left button going down or up.
    static void PushMouse(SDL_EventType type, int x, int y);

    HWND window = nullptr;
    inline static std::vector<Received> received;

private:
    static LRESULT Procedure(HWND target, UINT message, WPARAM wParam, LPARAM lParam);
};
