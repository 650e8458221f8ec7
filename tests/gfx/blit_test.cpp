#include "gfx/blit.h"

#include "support/instruction_sets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <random>
#include <vector>

// Every routine against plain references, which work on separate channels where the routines work on whole words.

namespace
{
/// What a reference knows of one pixel.
struct Pixel {
    int source;
    int target;
    int alpha;
    bool opaqueGroup; ///< all four alpha values of its group are 31
    int opacity;
};

int FloorDiv(int a, int b)
{
    return a >= 0 ? a / b : -((-a + b - 1) / b);
}

int Blend(int kept, int blended, int weight, int full)
{
    const auto mix = [&](int from, int to) { return FloorDiv(from * full + (to - from) * weight, full); };
    const int red = (kept + (blended / full - kept / full) * weight) / 2048; // its carries come from below
    return red * 2048 + mix(kept / 32 % 64, blended / 32 % 64) * 32 + mix(kept % 32, blended % 32);
}

int Add(const Pixel& p)
{
    const int red = std::min(p.source + p.target, 65535) / 2048;
    const int green = std::min(p.source % 2048 + p.target % 2048, 2047) / 32;
    return red * 2048 + green * 32 + std::min(p.source % 32 + p.target % 32, 31);
}

int Sub(const Pixel& p)
{
    const int red = std::max(p.target - p.source, 0) / 2048;
    const int green = std::max(p.target % 2048 - p.source % 2048, 0) / 32;
    return red * 2048 + green * 32 + std::max(p.target % 32 - p.source % 32, 0);
}

int OpacityColorKey(const Pixel& p)
{
    if (p.opacity < 8 || p.source == 0xFFFF)
        return p.target;
    return Blend(p.source, p.target, (256 - p.opacity) / 8, 32);
}

struct Routine {
    const char* name;
    BlitRoutine blit;
    int (*reference)(const Pixel&);
};

const Routine routines[] = {
    { "Copy", BlitCopy, [](const Pixel& p) { return p.source; } },
    { "ColorKey", BlitColorKey, [](const Pixel& p) { return p.source == 0xFFFF ? p.target : p.source; } },
    { "Add", BlitAdd, Add },
    { "Sub", BlitSub, Sub },
    { "Alpha", BlitAlpha,
      [](const Pixel& p) { return p.opaqueGroup ? p.source : Blend(p.target, p.source, p.alpha, 32); } },
    { "AlphaOpacity", BlitAlphaOpacity,
      [](const Pixel& p) { return Blend(p.target, p.source, p.alpha * (p.opacity / 8 + 1) / 32, 32); } },
    { "OpacityColorKey", BlitOpacityColorKey, OpacityColorKey },
    { "FadeToBlack", BlitFadeToBlack, [](const Pixel& p) { return Blend(p.source, 0, (256 - p.opacity) / 8, 32); } },
};

/// The ends of the routines' steps among others.
constexpr uint32_t opacities[] = { 0, 7, 8, 60, 133, 248, 249, 255 };

class Random
{
public:
    explicit Random(unsigned seed) : engine(seed) {}
    int operator()(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }

    uint16_t Colour() { return static_cast<uint16_t>((*this)(0, 4) == 0 ? COLOR_KEY : (*this)(0, 0xFFFF)); }
    /// Runs of 31 and of 0 are common, so that whole groups are.
    uint8_t Alpha()
    {
        if (run-- <= 0) {
            run = (*this)(0, 9);
            runAlpha = (*this)(0, 2) == 0 ? (*this)(0, 31) : (*this)(0, 1) * 31;
        }
        return static_cast<uint8_t>(runAlpha);
    }

private:
    std::mt19937 engine;
    int run = 0;
    int runAlpha = 0;
};

/// An image with random content, all its padding included.
void MakeRandomImage(CImage& image, Random& random, int width, int height)
{
    ASSERT_TRUE(image.Create(width, height) && image.CreateAlpha());
    std::generate_n(image.pixels, image.pitch / 2 * height, [&] { return random.Colour(); });
    std::generate_n(image.alpha, image.pitch / 2 * height, [&] { return random.Alpha(); });
}

std::vector<uint16_t> PlaneOf(const CImage& image)
{
    return { image.pixels, image.pixels + image.pitch / 2 * image.height };
}

/// Calls pixel(target row, target column, source row, source column, first drawn source column) for what is visible.
template <typename Visit>
void ForEachVisiblePixel(const CImage& target, const CImage& source, Visit pixel)
{
    const int left = target.x - source.x;
    const int top = target.y - source.y;
    for (int y = 0; y < target.height; ++y)
        for (int x = 0; x < target.width; ++x)
            if (x >= left && x < left + source.width && y >= top && y < top + source.height)
                pixel(y, x, y - top, x - left, std::max(0, -left));
}

/// The parent's whole plane as it should be after source is drawn onto target, a view of parent.
std::vector<uint16_t> Expected(const Routine& routine, const CImage& parent, const CImage& target, const CImage& source)
{
    std::vector<uint16_t> plane = PlaneOf(parent);
    ForEachVisiblePixel(target, source, [&](int y, int x, int row, int column, int first) {
        const uint8_t* alpha = source.AlphaRow(row);
        const uint8_t* group = alpha + first + (column - first) / 4 * 4;
        const bool opaque = std::count(group, group + 4, 31) == 4;
        uint16_t& pixel = plane[static_cast<size_t>(target.Row(y) + x - parent.pixels)];
        pixel = static_cast<uint16_t>(routine.reference(
            { source.Row(row)[column], pixel, alpha[column], opaque, static_cast<int>(source.opacity) }));
    });
    return plane;
}

void CompareWithReferences()
{
    Random random(20240607);
    for (int round = 0; round < 3000; ++round) {
        const Routine& routine = routines[round % std::size(routines)];
        CImage parent;
        CImage target; // a view, so that pixels around it show what is written beside it
        MakeRandomImage(parent, random, random(9, 40), random(9, 24));
        ASSERT_TRUE(target.CreateView(parent, random(0, 8), random(0, 8), random(1, 40), random(1, 24)));
        CImage whole;
        CImage part;
        MakeRandomImage(whole, random, random(1, 30), random(1, 12));
        CImage& source = random(0, 1) ? whole : part;
        ASSERT_TRUE(part.CreateView(whole, random(0, whole.width - 1), random(0, whole.height - 1), 30, 12));
        target.x = random(-32, 44);
        target.y = random(-12, 26);
        source.x = random(-8, 8);
        source.y = random(-4, 4);
        source.width = random(1, source.width); // as a draw limited to some columns
        source.opacity = opacities[random(0, 7)];

        const std::vector<uint16_t> expected = Expected(routine, parent, target, source);
        routine.blit(target, source);
        ASSERT_EQ(PlaneOf(parent), expected) << routine.name << ", round " << round;
    }
}
}

TEST(Blits, EqualPlainReferencesAtRandomSizesAndClips)
{
    OnEveryInstructionSet(CompareWithReferences);
}

TEST(Blits, DrawGlyphsByTheirCoverage)
{
    Random random(7);
    for (int round = 0; round < 2000; ++round) {
        CImage parent;
        CImage target;
        MakeRandomImage(parent, random, random(5, 40), random(5, 24));
        ASSERT_TRUE(target.CreateView(parent, random(0, 4), random(0, 4), random(1, 40), random(1, 24)));
        CImage box; // only its place and size
        box.width = 4 * random(1, 5);
        box.height = random(0, 9);
        box.x = random(-8, 8);
        box.y = random(-8, 8);
        target.x = random(-20, 44);
        target.y = random(-9, 26);
        std::vector<uint8_t> bits(static_cast<size_t>(box.width) * static_cast<size_t>(box.height));
        std::generate(bits.begin(), bits.end(), [&] { return static_cast<uint8_t>(random(0, 16)); });
        const GlyphView glyph{ box.x, box.y, box.width, box.height, 0, bits.data(), random.Colour() };

        std::vector<uint16_t> expected = PlaneOf(parent);
        ForEachVisiblePixel(target, box, [&](int y, int x, int row, int column, int) {
            uint16_t& pixel = expected[static_cast<size_t>(target.Row(y) + x - parent.pixels)];
            const int coverage = bits.data()[row * box.width + column];
            pixel = static_cast<uint16_t>(Blend(glyph.colour, pixel, 16 - coverage, 16));
        });
        BlitGlyphSmooth(target, glyph);
        ASSERT_EQ(PlaneOf(parent), expected) << "round " << round;
    }
}

TEST(Blits, DrawNothingFromPositionsThatMissTheTarget)
{
    constexpr int LOWEST = std::numeric_limits<int>::min();
    constexpr int HIGHEST = std::numeric_limits<int>::max();
    struct FarCase {
        int position;
        int anchor;
    };
    Random random(3);
    CImage target;
    CImage source;
    MakeRandomImage(target, random, 8, 8);
    MakeRandomImage(source, random, 8, 8);
    const std::vector<uint16_t> before = PlaneOf(target);
    for (const FarCase& row : { FarCase{ -8, 0 }, FarCase{ 8, 0 }, FarCase{ 0, 8 }, FarCase{ LOWEST, 0 },
                                FarCase{ LOWEST, HIGHEST }, FarCase{ HIGHEST, 0 }, FarCase{ HIGHEST, LOWEST } }) {
        for (int32_t CImage::*axis : { &CImage::x, &CImage::y }) {
            target.x = target.y = source.x = source.y = 0;
            target.*axis = row.position;
            source.*axis = row.anchor;
            BlitAlpha(target, source);
            EXPECT_EQ(PlaneOf(target), before) << row.position << " anchor " << row.anchor;
        }
    }
}
