#include "platform/sdl/screen.h"

#include "platform/window.h"

#include <string_view>

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
    const std::string_view name = driver ? driver : "";
    return !name.empty() && name != "dummy" && name != "offscreen";
}

SDL_Rect MainScreen()
{
    SDL_Rect area = {};
    SDL_GetDisplayBounds(0, &area);
    return area;
}

int GetSystemMetrics(int index)
{
    const SDL_Rect screen = MainScreen();
    return index == SM_CXSCREEN ? screen.w : index == SM_CYSCREEN ? screen.h : 0;
}
