#include "platform/sdl/frame_fit.h"

#include <algorithm>
#include <cmath>

SDL_Rect FitFrame(SDL_Point frame, SDL_Point area)
{
    constexpr int SPARE = 4;
    const int whole = std::min(area.x / frame.x, area.y / frame.y);
    const int left = std::min(area.x - frame.x * whole, area.y - frame.y * whole);
    const bool isWhole = whole > 0 && left < SPARE;
    const double fitting = std::min(static_cast<double>(area.x) / frame.x, static_cast<double>(area.y) / frame.y);
    const double scale = isWhole ? whole : fitting;
    const int width = std::max(1, static_cast<int>(std::lround(frame.x * scale)));
    const int height = std::max(1, static_cast<int>(std::lround(frame.y * scale)));
    return { (area.x - width) / 2, (area.y - height) / 2, width, height };
}

int NearestWholeFactor(int frameWidth, int shownWidth)
{
    // Of two equally near ones the smaller: it is as sharp and costs less.
    return std::max(1, static_cast<int>(std::ceil(static_cast<double>(shownWidth) / frameWidth - 0.5)));
}
