#pragma once

#include <cstdint>

// Pixels of 32 bits are 0xFFRRGGBB.

/// From RGB565 as SDL does it, each part of the pixel's two bytes by itself: a full red is 255, but a full green 254.
constexpr uint32_t ConvertPixel(uint16_t pixel)
{
    const uint32_t red = (pixel >> 11) * 255u / 31;
    const uint32_t green = (pixel >> 8 & 7) * 8u * 255 / 63 + (pixel >> 5 & 7) * 4u;
    const uint32_t blue = (pixel & 31) * 255u / 31;
    return 0xFF000000 | red << 16 | green << 8 | blue;
}

/// Between two pixels; `weight` is the second one's share in 1/32768, below 1, in both halves of the word.
constexpr uint32_t MixPixels(uint32_t a, uint32_t b, uint32_t weight)
{
    uint32_t mixed = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const int from = a >> shift & 0xFF;
        const int change = static_cast<int>(b >> shift & 0xFF) - from;
        mixed |= static_cast<uint32_t>(from + ((change * static_cast<int>(weight & 0x7FFF) + 0x4000) >> 15)) << shift;
    }
    return mixed;
}
