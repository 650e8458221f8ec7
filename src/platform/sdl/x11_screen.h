#pragma once

#include <SDL.h>
#include <optional>

/// The main screen's area as it is now, if the window is on an X server: SDL keeps the sizes that it found at first.
std::optional<SDL_Rect> X11MainScreen(SDL_Window* window);

/// Makes a full-screen window cover that area where no window manager has done so; elsewhere does nothing.
void CoverX11Screen(SDL_Window* window);
