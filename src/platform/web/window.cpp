#include "platform/window.h"

#include "platform/sdl/events.h"
#include "platform/sdl/messages.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/pads.h"
#include "platform/web/page.h"

// The one window is the page's canvas. It has neither frame nor place, and the page scales it to what room there is.

namespace
{
WNDPROC registeredProcedure = nullptr;

void CloseWindow()
{
    StopPads();
    SDL_Window* const closing = nativeWindow.handle;
    nativeWindow = {}; // what shows its frames goes before the window does
    SDL_DestroyWindow(closing);
    ForgetEvents();
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
}
}

void KeepClientSize() {}

bool EnterFullScreen(NativeWindow& window, SDL_Point frameSize)
{
    PageEnterFullScreen();
    return window.view.SetFrameSize(frameSize);
}

void LeaveFullScreen(NativeWindow&)
{
    PageLeaveFullScreen();
}

ATOM RegisterClassA(const WNDCLASSA* windowClass)
{
    registeredProcedure = windowClass->lpfnWndProc;
    return 1;
}

HWND CreateWindowExA(DWORD, LPCSTR, LPCSTR title, DWORD style, int, int, int width, int height, HWND, HMENU, HINSTANCE,
                     LPVOID)
{
    SDL_SetHint(SDL_HINT_TOUCH_MOUSE_EVENTS, "0");  // the page makes clicks and keys of touches
    SDL_SetHint(SDL_HINT_EMSCRIPTEN_ASYNCIFY, "0"); // only Idle can let the browser go on; SDL_Delay would break in
    if (nativeWindow.handle || SDL_InitSubSystem(SDL_INIT_VIDEO) != 0)
        return nullptr;
    nativeWindow.handle = SDL_CreateWindow(title, 0, 0, width, height, 0);
    nativeWindow.procedure = registeredProcedure;
    nativeWindow.style = style;
    nativeWindow.clientSize = { width, height };
    StartPads();
    if (nativeWindow.handle && nativeWindow.view.Open(nativeWindow.handle) &&
        nativeWindow.view.SetFrameSize(nativeWindow.clientSize))
        return NativeHandle();
    CloseWindow();
    return nullptr;
}

BOOL DestroyWindow(HWND handle)
{
    NativeWindow* window = WindowOf(handle);
    if (!window || window->closing)
        return FALSE;
    window->closing = true;
    window->procedure(handle, WM_DESTROY, 0, 0);
    CloseWindow();
    return TRUE;
}

BOOL ShowWindow(HWND, int command)
{
    if (command == SW_MINIMIZE)
        PageStepBack();
    return TRUE;
}

BOOL SetWindowPos(HWND, HWND, int, int, int, int, UINT)
{
    return TRUE;
}

BOOL AdjustWindowRectEx(RECT*, DWORD, BOOL, DWORD)
{
    return TRUE;
}

int GetSystemMetrics(int index)
{
    return index == SM_CXSCREEN ? nativeWindow.clientSize.x : nativeWindow.clientSize.y;
}

BOOL RedrawWindow(HWND, const RECT*, HRGN, UINT)
{
    nativeWindow.view.ShowAll();
    return TRUE;
}

HICON LoadIconA(HINSTANCE, LPCSTR)
{
    return nullptr; // the page has its own
}
