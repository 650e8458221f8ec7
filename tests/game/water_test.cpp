#include "game/water.h"

#include "game/water_rules.h"
#include "support/instruction_sets.h"

#include <algorithm>
#include <climits>
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

    bool IsShown(int column, int row) const
    {
        return column >= x && column < x + shownWidth && row >= y && row < y + shownHeight;
    }
    /// Only whole groups of four are displaced, and neither the first row nor the last.
    bool IsDisplaced(int column, int row) const
    {
        const int group = column / 4 * 4;
        return group >= x && group + 4 <= x + shownWidth && row >= 1 && row <= HEIGHT - 2;
    }
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

void CompareFrames(const FrameCase& given)
{
    CImage planes[2];
    for (CImage& plane : planes)
        ASSERT_TRUE(plane.Create(given.width, HEIGHT));
    WaterInit(planes[0], planes[1], given.damping, given.refraction);
    std::mt19937 random(7);
    std::vector<uint16_t> source(static_cast<size_t>(given.width * HEIGHT));
    for (size_t i = 0; i < source.size(); ++i) {
        source[i] = static_cast<uint16_t>(random());
        const size_t row = i / static_cast<size_t>(given.width);
        for (int16_t* heights : { water.current, water.previous })
            if (row > 0 && row < HEIGHT - 1) // the others stay calm
                heights[i] =
                    static_cast<int16_t>(std::uniform_int_distribution(-given.amplitude, given.amplitude)(random));
    }
    const auto counted = [](int shift) { return shift < 0 || shift > 15 ? 15 : shift; };
    ReferenceWater reference = { given.width, counted(given.damping), counted(given.refraction), Heights(water.current),
                                 Heights(water.previous) };
    for (int frame = 0; frame < 4; ++frame) {
        std::vector<uint16_t> target(source.size());
        WaterFrame(source.data(), given.x, given.y, given.shownWidth, given.shownHeight, target.data(), given.x,
                   given.y, given.width * 2);
        for (int i = 0; i < given.width * HEIGHT; ++i) {
            const int x = i % given.width;
            const int y = i / given.width;
            const int shown = given.IsDisplaced(x, y) ? reference.Displaced(i) : i;
            ASSERT_EQ(target[static_cast<size_t>(i)], given.IsShown(x, y) ? source[static_cast<size_t>(shown)] : 0)
                << given.why << ", frame " << frame << " at " << x << ", " << y;
        }
        reference.Step();
        ASSERT_EQ(Heights(water.current), reference.current) << given.why;
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

TEST(Water, RulesGiveTheHandWorkedValues)
{
    constexpr WaterNeighbours steep = { .up = 30000, .down = 30000, .left = -30000, .right = 20000 };
    constexpr struct {
        const char* reason;
        int actual, expected;
    } rules[] = {
        { "first 0 + 30000 + 20000", NeighbourSum(steep, 0), 32767 },
        { "second 32767 + 20000, less 30000", NeighbourSum(steep, 1), 2767 },
        { "third as the second", NeighbourSum(steep, 2), 2767 },
        { "fourth 32767 - 30000 + 20000", NeighbourSum(steep, 3), 22767 },
        { "half the sum, rounded down, less the height before, less 1/32", NextHeight(-201, 219, 5), -310 },
        { "a drop by 16 rows' height is two rows", DisplacementAt({ 0, 16, 0, 0 }, 3).rows, -2 },
        { "half as far along the row, rounded down", DisplacementAt({ 0, 0, 0, 24 }, 3).columns, -2 },
        { "slopes saturate", DisplacementAt({ 30000, -30000, 0, 0 }, 3).rows, 4095 },
    };
    for (const auto& rule : rules)
        EXPECT_EQ(rule.actual, rule.expected) << rule.reason;
}

TEST(Water, ClipsDiscsToTheFieldWithoutItsTopAndBottomRows)
{
    constexpr int WIDTH = 60;
    constexpr struct {
        int x, y, radius;
        int samples; ///< that are set
        const char* why;
    } discs[] = {
        { 10, 10, 2, 9, "corners at distance 1.4 are inside 2" },
        { -3, 10, 4, 5, "only column 0, no wrap-around" },
        { WIDTH + 2, 10, 4, 5, "only the last column" },
        { 10, 0, 2, 3, "row 0 is left out" },
        { 10, HEIGHT - 1, 2, 3, "the last row is left out" },
        { 10, 10, -5, 0, "negative radius" },
        { INT_MIN, INT_MAX, INT_MAX, 0, "huge, beside the field" },
        { 10, 10, INT_MAX, WIDTH * (HEIGHT - 2), "huge, around the field" },
    };
    CImage planes[2];
    ASSERT_TRUE(planes[0].Create(WIDTH, HEIGHT) && planes[1].Create(WIDTH, HEIGHT));
    for (const auto& [x, y, radius, samples, why] : discs) {
        WaterInit(planes[0], planes[1], 5, 3);
        DisturbWater(x, y, radius, 170);
        EXPECT_EQ(std::count(water.current + WIDTH, water.current + WIDTH * (HEIGHT - 1), 170), samples) << why;
        EXPECT_EQ(std::count(water.current, water.current + WIDTH * HEIGHT, 170), samples) << why;
    }
}
