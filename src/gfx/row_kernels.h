#pragma once

#include <cstddef>
#include <cstdint>

/// What the blit routines do to one row of `count` pixels. Nothing is written past the row's end, and nothing read
/// there but what is said below. Rows of one image never overlap those of another, except that `copy` takes any.
struct RowKernels {
    using PixelRow = void (*)(uint16_t* target, size_t count, const uint16_t* source);
    using AlphaRow = void (*)(uint16_t* target, size_t count, const uint16_t* source, const uint8_t* alpha);
    using AlphaOpacityRow = void (*)(uint16_t* target, size_t count, const uint16_t* source, const uint8_t* alpha,
                                     int scale);
    using WeightedRow = void (*)(uint16_t* target, size_t count, const uint16_t* source, int weight);
    using GlyphRow = void (*)(uint16_t* target, size_t count, const uint8_t* coverage, uint16_t colour);

    PixelRow copy;
    PixelRow colorKey;
    PixelRow add;
    PixelRow sub;
    /// Works in groups of four: a group whose alpha values are all 31 is copied. The last group's values count even
    /// past the row's end, so `alpha` has `count` rounded up to 4 of them.
    AlphaRow alpha;
    AlphaOpacityRow alphaOpacity; ///< `scale` is the opacity's share of the alpha, 1 to 32
    WeightedRow opacityColorKey;  ///< `weight` is what remains of the target, 0 to 32
    WeightedRow fadeToBlack;      ///< `weight` is the black's, 0 (the source unchanged) to 32 (black)
    GlyphRow glyph;               ///< `coverage` is 0 (empty) to 16 (full)
    PixelRow toRgb555;
};

/// The kernels for the best instruction set of this machine; all give the same pixels.
const RowKernels& BestRowKernels();
