#include "gfx/row_kernels.h"

#include "gfx/pixel_rules.h"

#include <algorithm>
#include <cstring>

namespace
{
constexpr size_t GROUP = 4;
constexpr uint8_t OPAQUE_ALPHA = 31;

bool IsOpaqueGroup(const uint8_t* alpha)
{
    return std::all_of(alpha, alpha + GROUP, [](uint8_t value) { return value == OPAQUE_ALPHA; });
}
}

void CopyRow(const uint16_t* source, uint16_t* target, size_t count)
{
    std::memmove(target, source, count * sizeof(uint16_t));
}

void ColorKeyRow(const uint16_t* source, uint16_t* target, size_t count)
{
    for (size_t i = 0; i < count; ++i)
        target[i] = ColorKeyPixel(source[i], target[i]);
}

void AddRow(const uint16_t* source, uint16_t* target, size_t count)
{
    for (size_t i = 0; i < count; ++i)
        target[i] = AddPixel(source[i], target[i]);
}

void SubRow(const uint16_t* source, uint16_t* target, size_t count)
{
    for (size_t i = 0; i < count; ++i)
        target[i] = SubPixel(source[i], target[i]);
}

void AlphaRow(const uint16_t* source, const uint8_t* alpha, uint16_t* target, size_t count)
{
    for (size_t group = 0; group < count; group += GROUP) {
        const size_t end = std::min(group + GROUP, count);
        // Not the same as blending by 31, which keeps 1/32 of the target. An empty group needs no such care:
        // blending by 0 leaves the target exactly.
        if (IsOpaqueGroup(alpha + group)) {
            CopyRow(source + group, target + group, end - group);
            continue;
        }
        for (size_t i = group; i < end; ++i)
            target[i] = AlphaPixel(source[i], target[i], alpha[i]);
    }
}

void AlphaOpacityRow(const uint16_t* source, const uint8_t* alpha, uint16_t* target, size_t count, int scale)
{
    for (size_t i = 0; i < count; ++i)
        target[i] = AlphaOpacityPixel(source[i], target[i], alpha[i], scale);
}

void OpacityColorKeyRow(const uint16_t* source, uint16_t* target, size_t count, int targetWeight)
{
    for (size_t i = 0; i < count; ++i)
        target[i] = OpacityColorKeyPixel(source[i], target[i], targetWeight);
}

void FadeToBlackRow(const uint16_t* source, uint16_t* target, size_t count, int blackWeight)
{
    for (size_t i = 0; i < count; ++i)
        target[i] = FadeToBlackPixel(source[i], blackWeight);
}

void GlyphRow(const uint8_t* coverage, uint16_t* target, size_t count, uint16_t colour)
{
    for (size_t i = 0; i < count; ++i)
        target[i] = GlyphPixel(colour, target[i], coverage[i]);
}
