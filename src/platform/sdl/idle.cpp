#include "platform/sdl/idle.h"

#include <SDL.h>

/// The program then needs a few per cent of the processor instead of all, and the game's 40 ms frame starts at most
/// this much late.
void Idle()
{
    constexpr int PAUSE_MS = 1;
    SDL_WaitEventTimeout(nullptr, PAUSE_MS);
}
