#include "game/water.h"

#include "game/water_rows.h"

#include <algorithm>
#include <cstring>
#include <utility>

WaterState water{};

namespace
{
/// The part of the picture that is shown, and where: field samples and target pixels.
struct ShownPart {
    int x;
    int y;
    int width;
    int height;
    uint16_t* target; ///< pixel of the part's top-left corner
    ptrdiff_t targetStride;

    uint16_t* TargetRow(int fieldRow) const { return target + (fieldRow - y) * targetStride; }
    bool ContainsRow(int fieldRow) const { return fieldRow >= y && fieldRow < y + height; }
};

/// A processor's packed shift treats larger counts as 15: nothing but the sign is left.
int ClampShift(int shift)
{
    return static_cast<int>(std::min(static_cast<uint32_t>(shift), 15U));
}

/// The height left of a row's first sample is the end of the row before, but calm for the first row stepped.
int16_t LeftOf(const int16_t* current, int x, int y)
{
    return x == 0 && y == 1 ? int16_t{ 0 } : current[-1];
}

void CopyPart(const uint16_t* source, const ShownPart& part)
{
    for (int y = part.y; y < part.y + part.height; ++y) {
        const uint16_t* row = source + static_cast<ptrdiff_t>(y) * water.fieldWidth + part.x;
        std::memcpy(part.TargetRow(y), row, static_cast<size_t>(part.width) * sizeof(uint16_t));
    }
}

void StepRow(const WaterKernels& kernels, int y)
{
    const ptrdiff_t start = static_cast<ptrdiff_t>(y) * water.fieldWidth;
    const int16_t* current = water.current + start;
    kernels.stepRow(current, water.previous + start, water.fieldWidth, LeftOf(current, 0, y),
                    ClampShift(water.dampingShift));
}

/// Displaces the whole groups of four samples of that row that lie in the part.
void RefractRow(const WaterKernels& kernels, const uint16_t* source, const ShownPart& part, int y)
{
    const int first = (part.x + 3) / 4 * 4;
    const int end = (part.x + part.width) / 4 * 4;
    if (!part.ContainsRow(y) || first >= end)
        return;
    const int16_t* current = water.current + static_cast<ptrdiff_t>(y) * water.fieldWidth + first;
    const WaterSource picture = { source, water.fieldWidth, water.fieldHeight };
    kernels.refractRow(current, picture, first, y, end - first, LeftOf(current, first, y),
                       ClampShift(water.refractionShift), part.TargetRow(y) + (first - part.x));
}
}

void WaterInit(CImage& first, CImage& second, int dampingShift, int refractionShift)
{
    water.fieldWidth = first.width;
    water.fieldHeight = first.height;
    water.rowBytes = 2 * first.width;
    water.fieldBytes = 2 * first.width * first.height;
    water.dampingShift = dampingShift;
    water.refractionShift = refractionShift;
    water.current = reinterpret_cast<int16_t*>(first.pixels);
    water.previous = reinterpret_cast<int16_t*>(second.pixels);
    first.Fill(0);
    second.Fill(0);
}

void DisturbWater(int x, int y, int radius, int depth)
{
    // 64 bits: no position and radius can overflow them.
    const int64_t left = std::max<int64_t>(int64_t{ x } - radius, 0);
    const int64_t right = std::min<int64_t>(int64_t{ x } + radius, water.fieldWidth);
    const int64_t top = std::max<int64_t>(int64_t{ y } - radius, 1);
    const int64_t bottom = std::min<int64_t>(int64_t{ y } + radius, water.fieldHeight - 1);
    for (int64_t py = top; py < bottom; ++py)
        for (int64_t px = left; px < right; ++px)
            if ((px - x) * (px - x) + (py - y) * (py - y) < int64_t{ radius } * radius)
                water.current[py * water.fieldWidth + px] = static_cast<int16_t>(depth);
}

void WaterFrame(const uint16_t* source, int x0, int y0, int width, int height, uint16_t* target, int targetX,
                int targetY, int targetPitch)
{
    const ptrdiff_t stride = targetPitch / static_cast<ptrdiff_t>(sizeof(uint16_t));
    const ShownPart part = { x0, y0, width, height, target + targetY * stride + targetX, stride };
    const WaterKernels& kernels = BestWaterKernels();
    CopyPart(source, part);
    for (int y = 1; y < water.fieldHeight - 1; ++y) {
        StepRow(kernels, y);
        RefractRow(kernels, source, part, y);
    }
    std::swap(water.current, water.previous);
}
