#pragma once

#include <SDL.h>

/// The height of a window's title as the game reckons with it, pixels.
constexpr int TITLE_HEIGHT = 26;

/// What a desktop has for a window.
struct Desktop {
    SDL_Rect usable; ///< without panels and docks, in the units of window positions
    double scale;    ///< pixels per unit; other than 1 only where the desktop magnifies
};

/// The largest whole factor, at least 1, at which a window that shows the frame has room, from pixel to pixel.
int LargestFactor(SDL_Point frame, const Desktop& desktop);

/// The same in three quarters of the desktop's height: how a window is shown that nobody has chosen a factor for.
int AutomaticFactor(SDL_Point frame, const Desktop& desktop);

/// The size of the client area that shows the frame at that factor, in the units of window positions.
SDL_Point ShownSize(SDL_Point frame, int factor, double scale);

/// Where a client area of that size lies: around the centre, but with its title and as much else as fits in the area.
SDL_Rect PlaceAround(SDL_Point centre, SDL_Point size, const SDL_Rect& area);
