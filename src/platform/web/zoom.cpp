#include "platform/sdl/zoom.h"

/// Ctrl with plus, minus and nought are the browser's own.
bool HandleZoomKey(const SDL_Keysym&)
{
    return false;
}
