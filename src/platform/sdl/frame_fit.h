#pragma once

#include <SDL.h>

constexpr bool SameSize(SDL_Point a, SDL_Point b)
{
    return a.x == b.x && a.y == b.y;
}

/// Where a frame lies in an area (pixels): as large as fits with its shape kept, in the middle. An area that is but a
/// few pixels larger than a whole multiple, as desktops with a fractional scale make them, shows just that.
SDL_Rect FitFrame(SDL_Point frame, SDL_Point area);

/// The whole factor nearest to the one by which a frame of that width is shown, at least 1.
int NearestWholeFactor(int frameWidth, int shownWidth);
