#pragma once

#include <cstddef>
#include <cstdint>

// What the blit routines do to one row of `count` pixels. Rows of one image never overlap those of another, except
// that CopyRow takes any.

void CopyRow(const uint16_t* source, uint16_t* target, size_t count);
void ColorKeyRow(const uint16_t* source, uint16_t* target, size_t count);
void AddRow(const uint16_t* source, uint16_t* target, size_t count);
void SubRow(const uint16_t* source, uint16_t* target, size_t count);

/// Works in groups of four: a group whose alpha values are all 31 is copied. The last group's values count even past
/// the row's end, so `alpha` has `count` rounded up to 4 of them.
void AlphaRow(const uint16_t* source, const uint8_t* alpha, uint16_t* target, size_t count);

/// `scale` is the opacity's share of the alpha, 1 to 32.
void AlphaOpacityRow(const uint16_t* source, const uint8_t* alpha, uint16_t* target, size_t count, int scale);

/// `targetWeight` is what remains of the target, 0 to 32.
void OpacityColorKeyRow(const uint16_t* source, uint16_t* target, size_t count, int targetWeight);

/// `blackWeight` is 0 (the source unchanged) to 32 (black).
void FadeToBlackRow(const uint16_t* source, uint16_t* target, size_t count, int blackWeight);

/// `coverage` is 0 (empty) to 16 (full).
void GlyphRow(const uint8_t* coverage, uint16_t* target, size_t count, uint16_t colour);
