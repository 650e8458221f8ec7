#pragma once

#include "test_images.h"

#include <SDL.h>
#include <pixman.h>

// The nearest routines of other libraries, drawing the same picture.

struct SdlPeer {
    Uint32 sourceFormat = SDL_PIXELFORMAT_UNKNOWN; ///< unknown: there is no such routine
    SDL_BlendMode blend = SDL_BLENDMODE_NONE;
    bool hasKey = false;
    Uint8 alphaMod = 255;
    Uint8 colorMod = 255;
    Uint32 targetFormat = SDL_PIXELFORMAT_RGB565;

    bool Exists() const { return sourceFormat != SDL_PIXELFORMAT_UNKNOWN; }
};

enum class PixmanInput { NONE, PICTURE, SOLID };

struct PixmanPeer {
    PixmanInput source = PixmanInput::NONE; ///< none: there is no such routine
    pixman_op_t operation = PIXMAN_OP_SRC;
    PixmanInput mask = PixmanInput::NONE; ///< a picture is an 8-bit alpha plane
    pixman_format_code_t targetFormat = PIXMAN_r5g6b5;

    bool Exists() const { return source != PixmanInput::NONE; }
};

Work SdlWork(const SdlPeer& peer, int width, int height);
Work PixmanWork(const PixmanPeer& peer, int width, int height);
