#include "platform/sdl/native_window.h"

#include <utility>

NativeWindow nativeWindow;

HWND NativeHandle()
{
    return reinterpret_cast<HWND>(&nativeWindow);
}

NativeWindow* WindowOf(HWND window)
{
    return window == NativeHandle() && nativeWindow.handle ? &nativeWindow : nullptr;
}

/// There are no extended styles.
LONG GetWindowLongA(HWND, int index)
{
    return index == GWL_STYLE ? static_cast<LONG>(nativeWindow.style) : 0;
}

/// A style counts in the reckoning of sizes only. Frames are not taken off and put on again: the style without one is
/// that of full screen, where no window has a frame.
LONG SetWindowLongA(HWND, int, LONG value)
{
    return static_cast<LONG>(std::exchange(nativeWindow.style, static_cast<DWORD>(value)));
}

HMENU GetMenu(HWND)
{
    return nullptr;
}
