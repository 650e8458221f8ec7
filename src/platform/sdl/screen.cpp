#include "platform/sdl/screen.h"

#include "platform/sdl/x11_screen.h"

#include <algorithm>
#include <string_view>

namespace
{
bool NeedsNoScreen(std::string_view driver)
{
    return driver == "dummy" || driver == "offscreen" || driver == "evdev";
}

int ScreenIndex(SDL_Window* window)
{
    return std::max(0, window ? SDL_GetWindowDisplayIndex(window) : 0);
}

double PixelsPerUnit(SDL_Window* window)
{
    SDL_Point units = {};
    SDL_Point pixels = {};
    SDL_GetWindowSize(window, &units.x, &units.y);
    SDL_GetWindowSizeInPixels(window, &pixels.x, &pixels.y);
    return pixels.x > 0 ? static_cast<double>(pixels.x) / units.x : 1;
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

SDL_Rect WindowScreen(SDL_Window* window)
{
    if (const std::optional<SDL_Rect> area = X11Screen(window))
        return *area;
    SDL_Rect area = {};
    SDL_GetDisplayBounds(ScreenIndex(window), &area);
    return area;
}

Desktop WindowDesktop(SDL_Window* window)
{
    const SDL_Rect screen = WindowScreen(window);
    SDL_Rect free = {};
    SDL_Rect usable = {};
    // SDL may take several screens for one, or remember one that has changed since.
    const bool isKnown =
        SDL_GetDisplayUsableBounds(ScreenIndex(window), &free) == 0 && SDL_IntersectRect(&screen, &free, &usable);
    return { isKnown ? usable : screen, PixelsPerUnit(window) };
}
