#include "platform/sdl/idle.h"

#include <algorithm>
#include <cmath>
#include <emscripten.h>

namespace
{
/// What the game's frames are apart. Waking more often would only cost power: what is pressed meanwhile is for the next
/// frame anyway.
constexpr double FRAME_MS = 40;

double nextFrame = 0; ///< when it is due
}

/// Hands the page back to the browser until the next frame is due, also on screens of any other rhythm.
void Idle()
{
    const double now = emscripten_get_now();
    emscripten_sleep(static_cast<unsigned>(std::ceil(std::max(nextFrame - now, 0.0))));
    // The game counts in whole milliseconds of the same clock, so that a browser that is late by less loses no time.
    nextFrame = std::floor(emscripten_get_now()) + FRAME_MS;
}
