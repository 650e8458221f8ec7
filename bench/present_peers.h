#pragma once

#include "test_images.h"

#include <SDL.h>

// Other libraries scaling the game's frame from RGB565 to pictures of 32 bits a pixel.

constexpr SDL_Point FRAME_SIZE = { 640, 480 };

/// With its software renderer as the game's own renderer output draws: sharply to a whole factor, and from there
/// smoothly.
Work ScaleWithSdl(SDL_Point picture);

/// In one step: the nearest pixel at whole factors, elsewhere linearly. Less sharp than the game's frames are, and less
/// work.
Work ScaleWithPixman(SDL_Point picture);
Work ScaleWithLibyuv(SDL_Point picture);
