#pragma once

#include <cstdint>

// The pixel format of all images: red in bits 11-15, green in 5-10, blue in 0-4.

constexpr uint16_t RED_MASK = 0xF800;
constexpr uint16_t GREEN_MASK = 0x07E0;
constexpr uint16_t BLUE_MASK = 0x001F;

/// Transparent for the colour-keyed routines: pure white.
constexpr uint16_t COLOR_KEY = 0xFFFF;

/// A pixel from 8-bit channels, by truncation.
constexpr uint16_t Rgb565(int red, int green, int blue)
{
    return static_cast<uint16_t>((red >> 3) << 11 | (green >> 2) << 5 | blue >> 3);
}
