#include "platform/sdl/idle.h"

#include <algorithm>
#include <cmath>
#include <emscripten.h>

namespace
{
/// What the game's frames are apart. Waking more often would only cost power: what is pressed meanwhile is for the next
/// frame anyway.
constexpr double FRAME_MS = 40;

double frameStart = 0; ///< when the browser last gave the processor back
}

/// Hands the page back to the browser until the next frame is due, also on screens of any other rhythm.
void Idle()
{
    const double now = emscripten_get_now();
    emscripten_sleep(static_cast<unsigned>(std::ceil(std::max(frameStart + FRAME_MS - now, 0.0))));
    frameStart = emscripten_get_now();
}
