#include "platform/sdl/screen.h"

#include "platform/sdl/native_window.h"
#include "platform/sdl/x11_screen.h"
#include "platform/window.h"

#include <string_view>

namespace
{
bool NeedsNoScreen(std::string_view driver)
{
    return driver == "dummy" || driver == "offscreen" || driver == "evdev";
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

SDL_Rect MainScreen()
{
    if (const std::optional<SDL_Rect> area = X11MainScreen(nativeWindow.handle))
        return *area;
    SDL_Rect area = {};
    SDL_GetDisplayBounds(0, &area);
    return area;
}

int GetSystemMetrics(int index)
{
    const SDL_Rect screen = MainScreen();
    return index == SM_CXSCREEN ? screen.w : index == SM_CYSCREEN ? screen.h : 0;
}
