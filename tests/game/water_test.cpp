#include "game/water.h"

#include "support/instruction_sets.h"

#include <algorithm>
#include <climits>
#include <random>
#include <vector>

namespace
{
constexpr int HEIGHT = 20;
constexpr int TARGET_STRIDE = 160;
constexpr int TARGET_X = 5;
constexpr int TARGET_Y = 2;

int16_t Saturated(int value)
{
    return static_cast<int16_t>(std::clamp(value, -32768, 32767));
}

/// The water's rules sample by sample over one run of heights, as plainly as can be.
struct ReferenceWater {
    int width;
    int damping;
    int refraction;
    std::vector<int> current;
    std::vector<int> previous;

    int At(int i) const { return current[static_cast<size_t>(i)]; }
    int Up(int i) const { return At(i - width); }
    int Down(int i) const { return At(i + width); }
    int Left(int i) const { return At(i - 1); }
    int Right(int i) const { return At(i + 1); }

    int Next(int i) const
    {
        const int up = Up(i), down = Down(i), left = Left(i), right = Right(i);
        const int orders[][4] = {
            { left, up, down, right }, { up, down, right, left }, { up, down, right, left }, { up, down, left, right }
        };
        int sum = 0;
        for (const int height : orders[i % 4])
            sum = Saturated(sum + height);
        const int next = Saturated((sum >> 1) - previous[static_cast<size_t>(i)]);
        return Saturated(next - (next >> damping));
    }

    /// The source sample shown at sample i.
    int Displaced(int i) const
    {
        const int rows = Saturated(Up(i) - Down(i)) >> refraction;
        const int halfColumns = Saturated(Left(i) - Right(i)) >> refraction;
        const int64_t shown = i + int64_t{ rows } * width + (halfColumns - (halfColumns & 1)) / 2;
        return shown >= 0 && shown < width * HEIGHT ? static_cast<int>(shown) : i;
    }

    void Step()
    {
        std::vector<int> next = previous; // first and last row stay
        for (int i = width; i < width * (HEIGHT - 1); ++i)
            next[static_cast<size_t>(i)] = Next(i);
        previous = current;
        current = next;
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
    { 60, 0, 0, 60, HEIGHT, 0, 5, 3, "calm water shows a copy" },
    { 140, 0, 0, 140, HEIGHT, 4, 5, 3, "flat samples among displaced ones" },
    { 60, 0, 0, 60, HEIGHT, 60, 5, 3, "ripples stay near" },
    { 140, 0, 0, 140, HEIGHT, 600, 5, 3, "some displacements leave the picture" },
    { 4, 0, 0, 4, HEIGHT, 600, 5, 3, "a single group" },
    { 140, 0, 0, 140, HEIGHT, 32767, 5, 3, "sums and slopes saturate" },
    { 60, 0, 0, 60, HEIGHT, 32767, 40, -1, "large shifts leave the sign" },
    { 60, 8, 3, 16, 9, 300, 5, 3, "a part in the middle" },
    { 60, 6, 0, 16, 4, 300, 5, 3, "only whole groups are refracted" },
    { 60, 56, 15, 4, 5, 300, 0, 0, "the last group, undamped" },
};

/// What the target must show.
std::vector<uint16_t> Expected(const FrameCase& given, const ReferenceWater& reference,
                               const std::vector<uint16_t>& source)
{
    std::vector<uint16_t> target(TARGET_STRIDE * (HEIGHT + 4));
    for (int y = given.y; y < given.y + given.shownHeight; ++y) {
        for (int x = given.x; x < given.x + given.shownWidth; ++x) {
            const int group = x / 4 * 4;
            const bool isWhole = group >= given.x && group + 4 <= given.x + given.shownWidth;
            const bool refracted = isWhole && y >= 1 && y <= HEIGHT - 2;
            const int i = y * given.width + x;
            const int at = (TARGET_Y + y - given.y) * TARGET_STRIDE + TARGET_X + x - given.x;
            target[static_cast<size_t>(at)] = source[static_cast<size_t>(refracted ? reference.Displaced(i) : i)];
        }
    }
    return target;
}

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
        std::vector<uint16_t> target(TARGET_STRIDE * (HEIGHT + 4));
        WaterFrame(source.data(), given.x, given.y, given.shownWidth, given.shownHeight, target.data(), TARGET_X,
                   TARGET_Y, TARGET_STRIDE * 2);
        ASSERT_EQ(target, Expected(given, reference, source)) << given.why << ", frame " << frame;
        reference.Step();
        ASSERT_EQ(Heights(water.current), reference.current) << given.why;
        ASSERT_EQ(Heights(water.previous), reference.previous) << given.why;
    }
}
}

TEST(Water, AgreesWithThePlainRulesOverRandomFields)
{
    OnEveryInstructionSet([] {
        for (const FrameCase& given : frameCases)
            CompareFrames(given);
    });
}

TEST(Water, ClipsDiscsToTheFieldWithoutItsTopAndBottomRows)
{
    constexpr int WIDTH = 60;
    constexpr struct {
        int x, y, radius;
        int samples; ///< that are set
        const char* why;
    } discs[] = {
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
    CImage planes[2];
    ASSERT_TRUE(planes[0].Create(WIDTH, HEIGHT) && planes[1].Create(WIDTH, HEIGHT));
    for (const auto& [x, y, radius, samples, why] : discs) {
        WaterInit(planes[0], planes[1], 5, 3);
        DisturbWater(x, y, radius, 170);
        const std::vector<int> heights = Heights(water.current);
        EXPECT_EQ(std::ranges::count(heights, 170), samples) << why;
        EXPECT_EQ(std::count(heights.begin() + WIDTH, heights.end() - WIDTH, 170), samples) << why;
    }
}
