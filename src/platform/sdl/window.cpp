#include "platform/sdl/events.h"
#include "platform/sdl/icon.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/pads.h"
#include "platform/sdl/screen.h"
#include "platform/sdl/signals.h"
#include "platform/sdl/zoom.h"

#include <algorithm>
#include <cstdio>

namespace
{
/// Title and border of the windows as the game reckons with them, pixels. The window manager's own may differ by a
/// few pixels; SDL places and sizes windows by their client area, so that only the centring is off by that much.
constexpr RECT FRAME = { 4, TITLE_HEIGHT, 4, 4 };

WNDPROC registeredProcedure = nullptr;
HICON registeredIcon = nullptr;

RECT FrameOf(DWORD style)
{
    return (style & WS_CAPTION) == WS_CAPTION ? FRAME : RECT{};
}

/// The client size of a window of that outer size and style.
SDL_Point ClientSize(int width, int height, DWORD style)
{
    const RECT frame = FrameOf(style);
    return { std::max<int>(1, width - frame.left - frame.right), std::max<int>(1, height - frame.top - frame.bottom) };
}

struct Hint {
    const char* name;
    const char* value;
};

constexpr Hint hints[] = {
    { SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0" },          // closing goes through the window procedure
    { SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1" },           // the click that activates is also a click
    { SDL_HINT_MOUSE_AUTO_CAPTURE, "1" },                 // moves outside are seen while a button is held
    { SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0" }, // or the whole desktop changes with our window
    { SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1" },
    { SDL_HINT_APP_NAME, "Tervalis" },
};

void SetHints()
{
    for (const Hint& hint : hints)
        SDL_SetHint(hint.name, hint.value);
    // The class of the window, by which a desktop finds the name and the icon that belong to it.
    for (const char* const variable : { "SDL_VIDEO_X11_WMCLASS", "SDL_VIDEO_WAYLAND_WMCLASS" })
        SDL_setenv(variable, TERVALIS_ID, 1);
}

/// The window is resizable only because window managers offer no maximise box otherwise. KeepClientSize undoes what
/// its border does, and maximising becomes a command (events.cpp).
bool OpenWindow(LPCSTR title)
{
    const SDL_Point size = nativeWindow.clientSize;
    nativeWindow.handle = SDL_CreateWindow(title, SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED, size.x, size.y,
                                           SDL_WINDOW_HIDDEN | SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI);
    if (!nativeWindow.handle)
        return false;
    SetIcon(nativeWindow.handle, registeredIcon);
    return nativeWindow.view.Open(nativeWindow.handle) && nativeWindow.view.SetFrameSize(size);
}

void CloseWindow()
{
    StopPads();
    SDL_Window* const closing = nativeWindow.handle;
    nativeWindow = {}; // what shows its frames goes before the window does
    if (closing)
        SDL_DestroyWindow(closing);
    ForgetEvents();
    IgnoreEndingSignals(); // which SDL would let end the program at once from here on
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

/// The game places a window that shows its frame pixel by pixel; magnified, it has the same middle.
void SetOuterPosition(NativeWindow& window, int x, int y)
{
    const RECT frame = FrameOf(window.style);
    const SDL_Rect screen = WindowScreen(window.handle);
    const SDL_Point client = { screen.x + x + frame.left, screen.y + y + frame.top };
    const SDL_Point middle = { client.x + window.clientSize.x / 2, client.y + window.clientSize.y / 2 };
    PlaceClientArea(window, middle, WindowDesktop(window.handle).usable);
    // A window manager takes the position of a window that it has not seen yet as that of the frame it will put
    // around it.
    if (!(window.style & WS_VISIBLE))
        SDL_SetWindowPosition(window.handle, window.clientPosition.x - frame.left, window.clientPosition.y - frame.top);
}

void ShowFirstTime(NativeWindow& window)
{
    SDL_ShowWindow(window.handle);
    window.style |= WS_VISIBLE;
    SDL_PumpEvents();
    // Its real frame is known now, and the client area can go to where it goes after every later change of mode.
    SDL_SetWindowPosition(window.handle, window.clientPosition.x, window.clientPosition.y);
    window.view.ShowAll();
}

/// The release of a button goes elsewhere once the window has gone, SDL then takes the button as held, and the next
/// press would be lost. Not for long: whoever keeps holding it wants something else.
void AwaitReleasedMouse()
{
    constexpr Uint32 LONGEST_MS = 1000;
    constexpr Uint32 PAUSE_MS = 4;
    const Uint32 start = SDL_GetTicks();
    while (SDL_GetMouseState(nullptr, nullptr) != 0 && SDL_GetTicks() - start < LONGEST_MS) {
        SDL_Delay(PAUSE_MS);
        SDL_PumpEvents();
    }
}
}

ATOM RegisterClassA(const WNDCLASSA* windowClass)
{
    registeredProcedure = windowClass->lpfnWndProc;
    registeredIcon = windowClass->hIcon;
    return 1;
}

HWND CreateWindowExA(DWORD extendedStyle, LPCSTR, LPCSTR title, DWORD style, int, int, int width, int height, HWND,
                     HMENU, HINSTANCE, LPVOID)
{
    if (nativeWindow.handle || !registeredProcedure)
        return nullptr;
    SetHints();
    EndOnHangUp();
    if (!StartVideo()) {
        std::fprintf(stderr, "%s: cannot open the display (tried: %s): %s\n", title, ScreenDrivers().c_str(),
                     SDL_GetError());
        return nullptr;
    }
    nativeWindow.procedure = registeredProcedure;
    nativeWindow.style = style;
    nativeWindow.extendedStyle = extendedStyle;
    nativeWindow.clientSize = ClientSize(width, height, style);
    if (!OpenWindow(title)) {
        std::fprintf(stderr, "%s: cannot make a window: %s\n", title, SDL_GetError());
        CloseWindow();
        return nullptr;
    }
    StartPads();
    return NativeHandle();
}

BOOL DestroyWindow(HWND handle)
{
    NativeWindow* window = WindowOf(handle);
    if (!window || window->closing)
        return FALSE;
    window->closing = true;
    SDL_HideWindow(window->handle);
    window->procedure(handle, WM_DESTROY, 0, 0);
    CloseWindow();
    return TRUE;
}

BOOL ShowWindow(HWND handle, int command)
{
    const NativeWindow* window = WindowOf(handle);
    if (!window || command != SW_MINIMIZE)
        return FALSE;
    AwaitReleasedMouse();
    SDL_MinimizeWindow(window->handle);
    return TRUE;
}

/// The order among other windows is left to the window manager: full screen comes to the front by itself.
BOOL SetWindowPos(HWND handle, HWND, int x, int y, int width, int height, UINT flags)
{
    NativeWindow* window = WindowOf(handle);
    if (!window)
        return FALSE;
    if (!(flags & SWP_NOSIZE)) {
        window->clientSize = ClientSize(width, height, window->style);
        ChooseFactor(*window);
        SetClientSize(*window, window->clientSize);
    }
    if (!(flags & SWP_NOMOVE))
        SetOuterPosition(*window, x, y);
    if ((flags & SWP_SHOWWINDOW) && !(window->style & WS_VISIBLE))
        ShowFirstTime(*window);
    return TRUE;
}

BOOL AdjustWindowRectEx(RECT* rectangle, DWORD style, BOOL, DWORD)
{
    const RECT frame = FrameOf(style);
    rectangle->left -= frame.left;
    rectangle->top -= frame.top;
    rectangle->right += frame.right;
    rectangle->bottom += frame.bottom;
    return TRUE;
}

BOOL RedrawWindow(HWND, const RECT*, HRGN, UINT)
{
    nativeWindow.view.ShowAll();
    return TRUE;
}

int GetSystemMetrics(int index)
{
    const SDL_Rect screen = WindowScreen(nativeWindow.handle);
    return index == SM_CXSCREEN ? screen.w : index == SM_CYSCREEN ? screen.h : 0;
}
