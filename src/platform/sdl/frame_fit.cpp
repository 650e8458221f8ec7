#include "platform/sdl/frame_fit.h"

#include <algorithm>
#include <cmath>

SDL_Rect FitFrame(SDL_Point frame, SDL_Point area)
{
    const double scale = std::min(static_cast<double>(area.x) / frame.x, static_cast<double>(area.y) / frame.y);
    const int width = std::max(1, static_cast<int>(std::lround(frame.x * scale)));
    const int height = std::max(1, static_cast<int>(std::lround(frame.y * scale)));
    return { (area.x - width) / 2, (area.y - height) / 2, width, height };
}

int NearestWholeFactor(int frameWidth, int shownWidth)
{
    // Of two equally near ones the smaller: it is as sharp and costs less.
    return std::max(1, static_cast<int>(std::ceil(static_cast<double>(shownWidth) / frameWidth - 0.5)));
}
