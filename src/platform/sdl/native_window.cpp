#include "platform/sdl/native_window.h"

#include "platform/sdl/frame_fit.h"
#include "platform/sdl/screen.h"
#include "platform/sdl/window_factor.h"
#include "platform/sdl/x11_screen.h"

namespace
{
SDL_Point WindowSize(const NativeWindow& window)
{
    return ShownSize(window.clientSize, window.factor, WindowDesktop(window.handle).scale);
}

/// What the window manager has put above the client area, pixels; 0 where that is not known.
int TitleHeight(SDL_Window* handle)
{
    int top = 0;
    SDL_GetWindowBordersSize(handle, &top, nullptr, nullptr, nullptr);
    return top;
}

/// SDL places client areas by the frame it knows, and after full screen the window manager first has to put one on
/// again. Not for long: some never do.
void AwaitTitle(const NativeWindow& window)
{
    constexpr int ATTEMPTS = 50;
    constexpr Uint32 PAUSE_MS = 4;
    for (int i = 0; i < ATTEMPTS && TitleHeight(window.handle) != window.titleHeight; ++i) {
        SDL_Delay(PAUSE_MS);
        SDL_PumpEvents();
    }
}
}

void SetClientSize(NativeWindow& window, SDL_Point size)
{
    window.clientSize = size;
    window.refusals = 0;
    const SDL_Point shown = WindowSize(window);
    SDL_SetWindowMinimumSize(window.handle, shown.x, shown.y); // first, or it would keep a window from shrinking
    SDL_SetWindowSize(window.handle, shown.x, shown.y);
    window.view.SetFrameSize(size);
}

void PlaceClientArea(NativeWindow& window, SDL_Point middle, const SDL_Rect& usable)
{
    const SDL_Rect place = PlaceAround(middle, WindowSize(window), usable);
    window.clientPosition = { place.x, place.y };
    SDL_SetWindowPosition(window.handle, place.x, place.y);
}

void KeepClientSize()
{
    // A border that is being dragged ends at its last size once more when it is let go.
    constexpr int MOST_REFUSALS = 3;
    constexpr Uint32 IN_A_ROW_MS = 1000;
    SDL_Point now = {};
    SDL_GetWindowSize(nativeWindow.handle, &now.x, &now.y);
    const bool isOwnSize = SDL_GetWindowFlags(nativeWindow.handle) & (SDL_WINDOW_FULLSCREEN | SDL_WINDOW_MAXIMIZED);
    const SDL_Point wanted = WindowSize(nativeWindow);
    if (isOwnSize || SameSize(now, wanted))
        return;
    const Uint32 time = SDL_GetTicks();
    const bool again = SameSize(now, nativeWindow.refusedSize) && time - nativeWindow.refusalTime < IN_A_ROW_MS;
    nativeWindow.refusals = again ? nativeWindow.refusals + 1 : 1;
    nativeWindow.refusedSize = now;
    nativeWindow.refusalTime = time;
    // A tiling window manager insists on its size; the frame is then scaled to it.
    if (nativeWindow.refusals <= MOST_REFUSALS)
        SDL_SetWindowSize(nativeWindow.handle, wanted.x, wanted.y);
}

bool EnterFullScreen(NativeWindow& window, SDL_Point frameSize)
{
    window.titleHeight = TitleHeight(window.handle);
    const std::optional<SDL_Rect> screen = X11Screen(window.handle); // before the window is anywhere else
    if (!window.view.SetFrameSize(frameSize) ||
        SDL_SetWindowFullscreen(window.handle, SDL_WINDOW_FULLSCREEN_DESKTOP) != 0)
        return false;
    if (screen)
        CoverX11Screen(window.handle, *screen);
    return true;
}

void LeaveFullScreen(NativeWindow& window)
{
    SDL_SetWindowFullscreen(window.handle, 0);
    if (!window.closing)
        AwaitTitle(window);
    SetClientSize(window, window.clientSize);
}
