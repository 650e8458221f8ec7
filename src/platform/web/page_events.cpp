#include "platform/sdl/keyboard.h"
#include "platform/sdl/messages.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/told_frame.h"

#include <cstdlib>
#include <emscripten.h>

// What the page's script tells the game.

namespace
{
constexpr LPARAM RELEASED = 0xC0000001;

void PostClick(UINT message, int x, int y)
{
    PostToWindow(message, 0, MAKELPARAM(x, y));
}
}

extern "C" {
/// A tap on that pixel of the frame.
EMSCRIPTEN_KEEPALIVE void TapScreen(int x, int y)
{
    PostClick(WM_MOUSEMOVE, x, y);
    PostClick(WM_LBUTTONDOWN, x, y);
    PostClick(WM_LBUTTONUP, x, y);
}

/// Steers the first player of the running game: up, down, left or right, counted from 0.
EMSCRIPTEN_KEEPALIVE void SteerFirstPlayer(int way)
{
    if (!Players().empty())
        TapKey(KeyOf(Players().front().keys, static_cast<Way>(way)), 0);
}

/// Alt+Enter: full screen and back.
EMSCRIPTEN_KEEPALIVE void SwitchFullScreen()
{
    PostToWindow(WM_SYSKEYUP, VK_RETURN, RELEASED);
}

/// The page is about to go: the program ends here and now, as when its window is closed, and stores its settings.
EMSCRIPTEN_KEEPALIVE void EndProgram()
{
    DestroyWindow(NativeHandle());
    std::exit(0);
}
}
