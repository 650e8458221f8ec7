#include "game/water_rows.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace
{
constexpr int GROUP = 4; ///< samples that are summed up together, each in the order of its place in the group

constexpr int Saturate(int height)
{
    return std::clamp<int>(height, std::numeric_limits<int16_t>::min(), std::numeric_limits<int16_t>::max());
}

/// The order matters only where a partial sum saturates; recorded games rely on it.
constexpr int SumInOrder(int a, int b, int c, int d)
{
    return Saturate(Saturate(Saturate(a + b) + c) + d);
}

/// A damped wave: the mean of the four neighbours carried on past the height before.
constexpr int16_t NextHeight(int neighbours, int before, int dampingShift)
{
    const int next = Saturate((neighbours >> 1) - before);
    return static_cast<int16_t>(Saturate(next - (next >> dampingShift)));
}

constexpr int Slope(int before, int after, int refractionShift)
{
    return Saturate(before - after) >> refractionShift;
}
}

void StepWaterRow(const int16_t* current, int16_t* previous, int width, int16_t left, int dampingShift)
{
    const int16_t* up = current - width;
    const int16_t* down = current + width;
    const auto step = [&](int x, int neighbours) { previous[x] = NextHeight(neighbours, previous[x], dampingShift); };
    for (int x = 0; x + GROUP <= width; x += GROUP) {
        step(x, SumInOrder(left, up[x], down[x], current[x + 1]));
        step(x + 1, SumInOrder(up[x + 1], down[x + 1], current[x + 2], current[x]));
        step(x + 2, SumInOrder(up[x + 2], down[x + 2], current[x + 3], current[x + 1]));
        step(x + 3, SumInOrder(up[x + 3], down[x + 3], current[x + 2], current[x + 4]));
        left = current[x + 3];
    }
}

void RefractWaterRow(const int16_t* current, const WaterSource& source, int x, int y, int count, int16_t left,
                     int refractionShift, uint16_t* target)
{
    const int16_t* up = current - source.width;
    const int16_t* down = current + source.width;
    const ptrdiff_t pixelCount = static_cast<ptrdiff_t>(source.width) * source.height;
    const ptrdiff_t first = static_cast<ptrdiff_t>(y) * source.width + x;
    for (int i = 0; i < count; ++i) {
        const int rows = Slope(up[i], down[i], refractionShift);
        const int columns = Slope(left, current[i + 1], refractionShift) >> 1;
        left = current[i];
        if (rows == 0 && columns == 0)
            continue;
        const ptrdiff_t displaced = first + i + static_cast<ptrdiff_t>(rows) * source.width + columns;
        if (displaced >= 0 && displaced < pixelCount)
            target[i] = source.pixels[displaced];
    }
}
