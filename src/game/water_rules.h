#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

// The water's arithmetic for one sample: the measure of every faster form. Heights are signed 16-bit values that
// saturate.

/// Samples that are summed up together, each in the order of its place in the group.
constexpr int WATER_GROUP = 4;

struct WaterNeighbours {
    int up;
    int down;
    int left;
    int right;
};

constexpr int SaturateHeight(int height)
{
    return std::clamp<int>(height, std::numeric_limits<int16_t>::min(), std::numeric_limits<int16_t>::max());
}

constexpr int SumInOrder(int a, int b, int c, int d)
{
    return SaturateHeight(SaturateHeight(SaturateHeight(a + b) + c) + d);
}

/// `place` is 0 to 3. The order matters only where a partial sum saturates; recorded games rely on it.
constexpr int NeighbourSum(const WaterNeighbours& heights, int place)
{
    const auto& [up, down, left, right] = heights;
    if (place == 0)
        return SumInOrder(left, up, down, right);
    if (place == WATER_GROUP - 1)
        return SumInOrder(up, down, left, right);
    return SumInOrder(up, down, right, left);
}

/// A damped wave: the mean of the four neighbours carried on past the height before.
constexpr int16_t NextHeight(int neighbourSum, int before, int dampingShift)
{
    const int next = SaturateHeight((neighbourSum >> 1) - before);
    return static_cast<int16_t>(SaturateHeight(next - (next >> dampingShift)));
}

constexpr int WaterSlope(int before, int after, int refractionShift)
{
    return SaturateHeight(before - after) >> refractionShift;
}

/// By how much the picture is displaced at a sample.
struct Displacement {
    int rows;
    int columns;
};

/// Half as far along the row as across rows, rounded down.
constexpr Displacement DisplacementAt(const WaterNeighbours& heights, int refractionShift)
{
    return { WaterSlope(heights.up, heights.down, refractionShift),
             WaterSlope(heights.left, heights.right, refractionShift) >> 1 };
}
