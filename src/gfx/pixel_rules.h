#pragma once

#include "gfx/rgb565.h"

#include <cstdint>

// The blit routines' arithmetic for one RGB565 pixel: the measure of every faster form. All of it is on unsigned
// 16-bit numbers and wraps around. Red is computed on the whole pixel, so that carries and borrows of green and blue
// reach it. Kept: recorded games and reference pictures rely on the exact result.

constexpr uint16_t Low16(int value)
{
    return static_cast<uint16_t>(value);
}

constexpr uint16_t SaturatedSum(uint16_t a, uint16_t b)
{
    return Low16(a + b > 0xFFFF ? 0xFFFF : a + b);
}

constexpr uint16_t FlooredDifference(uint16_t a, uint16_t b)
{
    return Low16(a > b ? a - b : 0);
}

/// Each channel saturates; an overflow carries one into the channel above.
constexpr uint16_t AddPixel(uint16_t source, uint16_t target)
{
    const int red = SaturatedSum(source, target) & RED_MASK;
    const int green = (SaturatedSum(Low16(source << 5), Low16(target << 5)) >> 5) & GREEN_MASK;
    const int blue = SaturatedSum(Low16(source << 11), Low16(target << 11)) >> 11;
    return Low16(red | green | blue);
}

/// Target minus source. Each channel floors at 0; what is short below takes one from the channel above.
constexpr uint16_t SubPixel(uint16_t source, uint16_t target)
{
    const int red = FlooredDifference(target, source) & RED_MASK;
    const int green = (FlooredDifference(Low16(target << 5), Low16(source << 5)) >> 5) & GREEN_MASK;
    const int blue = FlooredDifference(Low16(target << 11), Low16(source << 11)) >> 11;
    return Low16(red | green | blue);
}

/// `kept` + (`blended` - `kept`) x weight / 2^SHIFT in one channel, rounded down.
template <int SHIFT>
constexpr int BlendChannel(uint16_t kept, uint16_t blended, int weight, uint16_t mask)
{
    const int change = Low16(((blended & mask) - (kept & mask)) * weight) >> SHIFT;
    return (change + (kept & mask)) & mask;
}

/// `kept` + (`blended` - `kept`) x weight / 2^SHIFT; weight 0 is exactly `kept`, 2^SHIFT exactly `blended`.
template <int SHIFT>
constexpr uint16_t BlendPixel(uint16_t kept, uint16_t blended, int weight)
{
    const int red = Low16(((blended >> SHIFT) - (kept >> SHIFT)) * weight + kept) & RED_MASK;
    return Low16(red | BlendChannel<SHIFT>(kept, blended, weight, GREEN_MASK) |
                 BlendChannel<SHIFT>(kept, blended, weight, BLUE_MASK));
}

constexpr uint16_t ColorKeyPixel(uint16_t source, uint16_t target)
{
    return source == COLOR_KEY ? target : source;
}

/// `alpha` is 0 to 31; even 31 keeps 1/32 of the target.
constexpr uint16_t AlphaPixel(uint16_t source, uint16_t target, int alpha)
{
    return BlendPixel<5>(target, source, alpha);
}

/// `scale` is the opacity's share of the alpha, 1 to 32.
constexpr uint16_t AlphaOpacityPixel(uint16_t source, uint16_t target, int alpha, int scale)
{
    return BlendPixel<5>(target, source, (alpha * scale) >> 5);
}

/// `targetWeight` is what remains of the target, 0 to 32.
constexpr uint16_t OpacityColorKeyPixel(uint16_t source, uint16_t target, int targetWeight)
{
    return source == COLOR_KEY ? target : BlendPixel<5>(source, target, targetWeight);
}

/// `blackWeight` is 0 (the source unchanged) to 32 (black).
constexpr uint16_t FadeToBlackPixel(uint16_t source, int blackWeight)
{
    return BlendPixel<5>(source, 0, blackWeight);
}

/// `coverage` is 0 (empty) to 16 (full).
constexpr uint16_t GlyphPixel(uint16_t colour, uint16_t target, int coverage)
{
    return BlendPixel<4>(colour, target, 16 - coverage);
}

/// For screens with five bits a channel: red and green move down one bit and the lowest green bit is dropped.
constexpr uint16_t RED_GREEN_MASK_555 = 0x7FE0;
constexpr uint16_t Rgb555Pixel(uint16_t pixel)
{
    return Low16(((pixel >> 1) & RED_GREEN_MASK_555) | (pixel & BLUE_MASK));
}
