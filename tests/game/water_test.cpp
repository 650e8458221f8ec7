#include "game/water.h"

#include "game/water_rules.h"
#include "support/instruction_sets.h"

#include <algorithm>
#include <random>
#include <vector>

namespace
{
constexpr int HEIGHT = 20;

/// The rules of single samples over one run of heights.
struct ReferenceWater {
    int width;
    int damping;
    int refraction;
    std::vector<int> current;
    std::vector<int> previous;

    WaterNeighbours Around(int i) const
    {
        const int* height = &current[static_cast<size_t>(i)];
        return { height[-width], height[width], height[-1], height[1] };
    }

    /// The source sample shown at sample i.
    int Displaced(int i) const
    {
        const auto [rows, columns] = DisplacementAt(Around(i), refraction);
        const int64_t shown = i + int64_t{ rows } * width + columns;
        return shown >= 0 && shown < width * HEIGHT ? static_cast<int>(shown) : i;
    }

    void Step()
    {
        for (int i = width; i < width * (HEIGHT - 1); ++i) { // first and last row stay
            int& height = previous[static_cast<size_t>(i)];
            height = NextHeight(NeighbourSum(Around(i), i % 4), height, damping);
        }
        std::swap(previous, current);
    }
};

struct FrameCase {
    int width;
    int x, y, shownWidth, shownHeight;
    int amplitude;
    int damping, refraction;
    const char* why;
};
constexpr FrameCase frameCases[] = {
    { 140, 0, 0, 140, HEIGHT, 4, 5, 3, "flat samples among displaced ones" },
    { 140, 0, 0, 140, HEIGHT, 600, 5, 3, "some displacements leave the picture" },
    { 4, 0, 0, 4, HEIGHT, 600, 5, 3, "a single group" },
    { 140, 0, 0, 140, HEIGHT, 32767, 5, 3, "sums and slopes saturate" },
    { 60, 0, 0, 60, HEIGHT, 32767, 40, -1, "large shifts leave the sign" },
    { 60, 8, 3, 16, 9, 300, 5, 3, "a part in the middle" },
    { 60, 6, 0, 16, 4, 300, 5, 3, "only whole groups are refracted" },
    { 60, 56, 15, 4, 5, 300, 0, 0, "the last group, undamped" },
};

std::vector<int> Heights(const int16_t* heights)
{
    return { heights, heights + water.fieldWidth * water.fieldHeight };
}

using Pixels = std::vector<uint16_t>;

/// Only whole groups of four are displaced, and neither the first row nor the last.
Pixels ExpectedTarget(const FrameCase& given, const ReferenceWater& reference, const Pixels& source)
{
    Pixels target(source.size());
    for (int y = given.y; y < given.y + given.shownHeight; ++y) {
        for (int x = given.x; x < given.x + given.shownWidth; ++x) {
            const int group = x / 4 * 4;
            const bool isWhole = group >= given.x && group + 4 <= given.x + given.shownWidth;
            const int i = y * given.width + x;
            const int shown = isWhole && y >= 1 && y <= HEIGHT - 2 ? reference.Displaced(i) : i;
            target[static_cast<size_t>(i)] = source[static_cast<size_t>(shown)];
        }
    }
    return target;
}

void CompareFrames(const FrameCase& given)
{
    const auto& [width, x, y, shownWidth, shownHeight, amplitude, damping, refraction, why] = given;
    CImage planes[2];
    ASSERT_TRUE(planes[0].Create(width, HEIGHT) && planes[1].Create(width, HEIGHT));
    WaterInit(planes[0], planes[1], damping, refraction);
    std::mt19937 random(7);
    std::uniform_int_distribution<int16_t> height(static_cast<int16_t>(-amplitude), static_cast<int16_t>(amplitude));
    for (int16_t* heights : { water.current, water.previous }) // the first and last row stay calm
        std::generate(heights + width, heights + width * (HEIGHT - 1), [&] { return height(random); });
    Pixels source(static_cast<size_t>(width * HEIGHT));
    std::generate(source.begin(), source.end(), [&] { return static_cast<uint16_t>(random()); });
    const auto counted = [](int shift) { return shift < 0 || shift > 15 ? 15 : shift; };
    ReferenceWater reference = { width, counted(damping), counted(refraction), Heights(water.current),
                                 Heights(water.previous) };
    for (int frame = 0; frame < 4; ++frame) {
        Pixels target(source.size());
        WaterFrame(source.data(), x, y, shownWidth, shownHeight, target.data(), x, y, width * 2);
        ASSERT_EQ(target, ExpectedTarget(given, reference, source)) << why << ", frame " << frame;
        reference.Step();
        ASSERT_EQ(Heights(water.current), reference.current) << why << ", frame " << frame;
    }
}
}

TEST(Water, FollowsTheRulesOfItsSamplesOverRandomFields)
{
    OnEveryInstructionSet([] {
        for (const FrameCase& given : frameCases)
            CompareFrames(given);
    });
}
