#pragma once

#include "platform/types.h"

#include <SDL.h>

/// Gives a window an icon of LoadIconA; null leaves it without one.
void SetIcon(SDL_Window* window, HICON icon);
