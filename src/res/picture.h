#pragma once

#include "gfx/image.h"

#include <cstdint>

// What the decoders share.

/// Three times what the screen holds: a damaged header must not ask for gigabytes.
constexpr int64_t MAX_PICTURE_PIXELS = int64_t{ 1 } << 20;

/// A fresh, black image. False: ENGINE_CREATE_IMAGE.
bool CreatePicture(CImage& image, int width, int height);

/// Converts 8-bit blue, green, red triples.
void ConvertBgrRow(const uint8_t* bgr, uint16_t* pixels, int count);
