#include "platform/sdl/window_factor.h"

#include <algorithm>
#include <cmath>

namespace
{
/// The borders beside and below may lie outside; they are a few pixels at most.
int FactorWithin(SDL_Point frame, int width, int height, double scale)
{
    const int across = static_cast<int>(width * scale / frame.x);
    const int down = static_cast<int>((height - TITLE_HEIGHT) * scale / frame.y);
    return std::max(1, std::min(across, down));
}

/// The area's far end gives way before its near one.
int Within(int start, int length, int areaStart, int areaEnd)
{
    return std::max(areaStart, std::min(start, areaEnd - length));
}
}

int LargestFactor(SDL_Point frame, const Desktop& desktop)
{
    return FactorWithin(frame, desktop.usable.w, desktop.usable.h, desktop.scale);
}

int AutomaticFactor(SDL_Point frame, const Desktop& desktop)
{
    return FactorWithin(frame, desktop.usable.w, desktop.usable.h * 3 / 4, desktop.scale);
}

SDL_Point ShownSize(SDL_Point frame, int factor, double scale)
{
    const auto units = [=](int pixels) { return static_cast<int>(std::ceil(pixels * factor / scale)); };
    return { units(frame.x), units(frame.y) };
}

SDL_Rect PlaceAround(SDL_Point centre, SDL_Point size, const SDL_Rect& area)
{
    const int top = area.y + TITLE_HEIGHT;
    return { Within(centre.x - size.x / 2, size.x, area.x, area.x + area.w),
             Within(centre.y - size.y / 2, size.y, top, area.y + area.h), size.x, size.y };
}
