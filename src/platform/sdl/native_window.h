#pragma once

#include "platform/sdl/frame_view.h"
#include "platform/window.h"

#include <SDL.h>

/// What stands behind the game's one window handle.
struct NativeWindow {
    SDL_Window* handle = nullptr; ///< null when there is no window
    WNDPROC procedure = nullptr;
    DWORD style = 0;
    DWORD extendedStyle = 0;
    SDL_Point clientSize = {};     ///< pixels of the frame, as the game set it
    int factor = 1;                ///< by which the window shows it; the window manager may have another mind
    SDL_Point clientPosition = {}; ///< on the desktop, as it was set last
    SDL_Point refusedSize = {};    ///< what the window manager made of it instead
    int refusals = 0;              ///< how often it gave `refusedSize` in quick succession
    Uint32 refusalTime = 0;        ///< of the last one, ms
    int titleHeight = 0;           ///< of the real frame before full screen, pixels
    bool closing = false;          ///< WM_DESTROY is under way
    CFrameView view;
};

extern NativeWindow nativeWindow;

/// The window's handle, whether it is open or not.
HWND NativeHandle();

/// Null when the handle is not the open window's.
NativeWindow* WindowOf(HWND window);

/// Sizes the frame, pixels, and the client area that shows it at the window's factor.
void SetClientSize(NativeWindow& window, SDL_Point size);

/// Puts the client area around that place on the desktop, as far as the usable part of it allows.
void PlaceClientArea(NativeWindow& window, SDL_Point middle, const SDL_Rect& usable);

/// Gives the window its size again, after the user or the window manager changed it.
void KeepClientSize();

/// Covers the window's screen at its own resolution, showing frames of that size. False when that is not possible.
bool EnterFullScreen(NativeWindow& window, SDL_Point frameSize);
void LeaveFullScreen(NativeWindow& window);
