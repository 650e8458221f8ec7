#include "platform/sdl/native_window.h"

NativeWindow nativeWindow;

namespace
{
DWORD& StyleWord(NativeWindow& window, int index)
{
    return index == GWL_STYLE ? window.style : window.extendedStyle;
}
}

HWND NativeHandle()
{
    return reinterpret_cast<HWND>(&nativeWindow);
}

NativeWindow* WindowOf(HWND window)
{
    return window == NativeHandle() && nativeWindow.handle ? &nativeWindow : nullptr;
}

LONG GetWindowLongA(HWND handle, int index)
{
    NativeWindow* window = WindowOf(handle);
    return window ? static_cast<LONG>(StyleWord(*window, index)) : 0;
}

/// A style counts in the reckoning of sizes only. Frames are not taken off and put on again: the style without one is
/// that of full screen, where no window has a frame.
LONG SetWindowLongA(HWND handle, int index, LONG value)
{
    const LONG before = GetWindowLongA(handle, index);
    if (NativeWindow* window = WindowOf(handle))
        StyleWord(*window, index) = static_cast<DWORD>(value);
    return before;
}

HMENU GetMenu(HWND)
{
    return nullptr;
}
