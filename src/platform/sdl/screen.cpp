#include "platform/sdl/screen.h"

#include "platform/sdl/native_window.h"
#include "platform/sdl/x11_screen.h"
#include "platform/window.h"

#include <algorithm>
#include <string_view>

namespace
{
bool NeedsNoScreen(std::string_view driver)
{
    return driver == "dummy" || driver == "offscreen" || driver == "evdev";
}

int ScreenIndex()
{
    return std::max(0, nativeWindow.handle ? SDL_GetWindowDisplayIndex(nativeWindow.handle) : 0);
}

double PixelsPerUnit()
{
    int units = 0;
    int pixels = 0;
    SDL_GetWindowSize(nativeWindow.handle, &units, nullptr);
    SDL_GetWindowSizeInPixels(nativeWindow.handle, &pixels, nullptr);
    return units > 0 && pixels > 0 ? static_cast<double>(pixels) / units : 1;
}
}

std::string ScreenDrivers()
{
    if (const char* wanted = SDL_GetHint(SDL_HINT_VIDEODRIVER))
        return wanted;
    std::string names;
    for (int i = 0; i < SDL_GetNumVideoDrivers(); ++i) {
        const char* name = SDL_GetVideoDriver(i);
        if (!NeedsNoScreen(name))
            names += (names.empty() ? "" : ", ") + std::string(name);
    }
    return names;
}

bool StartVideo()
{
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0)
        return false;
    // Left to itself SDL falls back on drawing nowhere, and the game would run unseen.
    if (HasScreen() || SDL_GetHint(SDL_HINT_VIDEODRIVER))
        return true;
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    SDL_SetError("there is no screen to show a window on");
    return false;
}

bool HasScreen()
{
    const char* driver = SDL_GetCurrentVideoDriver();
    return driver && !NeedsNoScreen(driver);
}

SDL_Rect WindowScreen()
{
    if (const std::optional<SDL_Rect> area = X11Screen(nativeWindow.handle))
        return *area;
    SDL_Rect area = {};
    SDL_GetDisplayBounds(ScreenIndex(), &area);
    return area;
}

Desktop WindowDesktop()
{
    const SDL_Rect screen = WindowScreen();
    SDL_Rect free = {};
    SDL_Rect usable = {};
    // SDL may take several screens for one, or remember one that has changed since.
    const bool isKnown =
        SDL_GetDisplayUsableBounds(ScreenIndex(), &free) == 0 && SDL_IntersectRect(&screen, &free, &usable);
    return { isKnown ? usable : screen, PixelsPerUnit() };
}

int GetSystemMetrics(int index)
{
    const SDL_Rect screen = WindowScreen();
    return index == SM_CXSCREEN ? screen.w : index == SM_CYSCREEN ? screen.h : 0;
}
