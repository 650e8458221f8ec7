#include "game/water.h"

#include "support/instruction_sets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <random>
#include <vector>

namespace
{
constexpr int WIDTH = 60; // 32 + 16 + 8 + 4: a vector of each size
constexpr int HEIGHT = 20;
constexpr int SAMPLES = WIDTH * HEIGHT;
constexpr int TARGET_STRIDE = 72;
constexpr int TARGET_X = 5;
constexpr int TARGET_Y = 2;
constexpr uint16_t UNTOUCHED = 0xABCD;

int16_t Saturated(int value)
{
    return static_cast<int16_t>(std::min(std::max(value, -32768), 32767));
}

/// The water's rules sample by sample over one run of heights, as plainly as can be.
struct ReferenceWater {
    std::vector<int16_t> current;
    std::vector<int16_t> previous;
    int damping;
    int refraction;

    struct Neighbours {
        int up, down, left, right;
    };
    Neighbours Around(int i) const
    {
        const auto at = [this](int sample) { return int{ current[static_cast<size_t>(sample)] }; };
        return { at(i - WIDTH), at(i + WIDTH), i == WIDTH ? 0 : at(i - 1), at(i + 1) };
    }

    int16_t Next(int i) const
    {
        const auto [up, down, left, right] = Around(i);
        const std::array<std::array<int, 4>, 4> orders = { {
            { left, up, down, right },
            { up, down, right, left },
            { up, down, right, left },
            { up, down, left, right },
        } };
        int16_t sum = 0;
        for (const int height : orders[static_cast<size_t>(i % 4)])
            sum = Saturated(sum + height);
        const int16_t next = Saturated((sum >> 1) - previous[static_cast<size_t>(i)]);
        return Saturated(next - (next >> damping));
    }

    /// The source sample shown at sample i.
    int Displaced(int i) const
    {
        const auto [up, down, left, right] = Around(i);
        const int rows = Saturated(up - down) >> refraction;
        const int halfColumns = Saturated(left - right) >> refraction;
        const int columns = (halfColumns - (halfColumns & 1)) / 2;
        const long long shown = i + static_cast<long long>(rows) * WIDTH + columns;
        return shown >= 0 && shown < SAMPLES ? static_cast<int>(shown) : i;
    }

    void Step()
    {
        std::vector<int16_t> next = previous; // first and last row stay
        for (int i = WIDTH; i < SAMPLES - WIDTH; ++i)
            next[static_cast<size_t>(i)] = Next(i);
        previous = current;
        current = next;
    }
};

struct Part {
    int x, y, width, height;
};

/// What the target must show of that part.
std::vector<uint16_t> ReferencePicture(const ReferenceWater& reference, const Part& part,
                                       const std::vector<uint16_t>& source)
{
    std::vector<uint16_t> target(TARGET_STRIDE * (HEIGHT + 4), UNTOUCHED);
    for (int y = part.y; y < part.y + part.height; ++y) {
        for (int x = part.x; x < part.x + part.width; ++x) {
            const int group = x / 4 * 4;
            const bool refracted = y >= 1 && y <= HEIGHT - 2 && group >= part.x && group + 4 <= part.x + part.width;
            const int i = y * WIDTH + x;
            const int at = (TARGET_Y + y - part.y) * TARGET_STRIDE + TARGET_X + x - part.x;
            target[static_cast<size_t>(at)] = source[static_cast<size_t>(refracted ? reference.Displaced(i) : i)];
        }
    }
    return target;
}

struct FrameCase {
    Part part;
    int amplitude;
    int damping, refraction;
    int effectiveDamping, effectiveRefraction;
    const char* why;
};

class Water : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(first.Create(WIDTH, HEIGHT));
        ASSERT_TRUE(second.Create(WIDTH, HEIGHT));
        WaterInit(first, second, 5, 3);
    }

    void FillRandom(int16_t* heights, int amplitude)
    {
        for (int i = 0; i < SAMPLES; ++i)
            heights[i] = static_cast<int16_t>(std::uniform_int_distribution(-amplitude, amplitude)(random));
    }

    void CompareFrames(const FrameCase& given, const std::vector<uint16_t>& source)
    {
        WaterInit(first, second, given.damping, given.refraction);
        FillRandom(water.current, given.amplitude);
        FillRandom(water.previous, given.amplitude);
        ReferenceWater reference = { { water.current, water.current + SAMPLES },
                                     { water.previous, water.previous + SAMPLES },
                                     given.effectiveDamping,
                                     given.effectiveRefraction };
        for (int frame = 0; frame < 4; ++frame) {
            std::vector<uint16_t> target(TARGET_STRIDE * (HEIGHT + 4), UNTOUCHED);
            const auto& [x, y, width, height] = given.part;
            WaterFrame(source.data(), x, y, width, height, target.data(), TARGET_X, TARGET_Y, TARGET_STRIDE * 2);
            ASSERT_EQ(target, ReferencePicture(reference, given.part, source)) << given.why << ", frame " << frame;
            reference.Step();
            ASSERT_EQ(std::vector(water.current, water.current + SAMPLES), reference.current) << given.why;
            ASSERT_EQ(std::vector(water.previous, water.previous + SAMPLES), reference.previous) << given.why;
        }
    }

    std::mt19937 random{ 7 };
    CImage first;
    CImage second;
};

constexpr Part WHOLE = { 0, 0, WIDTH, HEIGHT };

TEST_F(Water, AgreesWithThePlainRulesOverRandomFields)
{
    constexpr FrameCase cases[] = {
        { WHOLE, 0, 5, 3, 5, 3, "calm water shows a copy" },
        { WHOLE, 4, 5, 3, 5, 3, "flat samples among displaced ones" },
        { WHOLE, 60, 5, 3, 5, 3, "ripples stay near" },
        { WHOLE, 600, 5, 3, 5, 3, "some displacements leave the picture" },
        { WHOLE, 32767, 5, 3, 5, 3, "sums and slopes saturate" },
        { WHOLE, 32767, 40, -1, 15, 15, "large shifts leave the sign" },
        { { 8, 3, 16, 9 }, 300, 5, 3, 5, 3, "a part in the middle" },
        { { 6, 0, 16, 4 }, 300, 5, 3, 5, 3, "only whole groups are refracted" },
        { { WIDTH - 4, 15, 4, 5 }, 300, 0, 0, 0, 0, "the last group, undamped" },
    };
    std::vector<uint16_t> source(SAMPLES);
    std::ranges::generate(source, [this] { return static_cast<uint16_t>(random()); });
    OnEveryInstructionSet([&] {
        for (const FrameCase& given : cases)
            CompareFrames(given, source);
    });
}

struct DiscCase {
    int x, y, radius;
    int samples; ///< that are set
    const char* why;
};

TEST_F(Water, ClipsDiscsToTheFieldWithoutItsTopAndBottomRows)
{
    constexpr DiscCase cases[] = {
        { 10, 10, 1, 1, "radius 1 is the centre" },
        { 10, 10, 2, 9, "corners at distance 1.4 are inside 2" },
        { -3, 10, 4, 5, "only column 0, no wrap-around" },
        { WIDTH + 2, 10, 4, 5, "only the last column" },
        { 10, 0, 2, 3, "row 0 is left out" },
        { 10, HEIGHT - 1, 2, 3, "the last row is left out" },
        { 10, 10, 0, 0, "no radius" },
        { 10, 10, -5, 0, "negative radius" },
        { INT_MAX, INT_MIN, 8, 0, "far off" },
        { INT_MIN, INT_MAX, INT_MAX, 0, "huge, beside the field" },
        { 10, 10, INT_MAX, WIDTH * (HEIGHT - 2), "huge, around the field" },
    };
    for (const DiscCase& disc : cases) {
        WaterInit(first, second, 5, 3);
        DisturbWater(disc.x, disc.y, disc.radius, 170);
        EXPECT_EQ(std::count(water.current, water.current + SAMPLES, 170), disc.samples) << disc.why;
        EXPECT_EQ(std::count(water.current + WIDTH, water.current + SAMPLES - WIDTH, 170), disc.samples) << disc.why;
    }
}
}
