#include "gfx/blit.h"

#include "gfx/display.h"
#include "gfx/pixel_rules.h"
#include "gfx/row_kernels.h"
#include "support/instruction_sets.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <random>
#include <set>
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

/// Draws half the alpha values as coverage, in a colour made of the opacity.
void DrawGlyph(CImage& target, const CImage& source)
{
    std::vector<uint8_t> coverage;
    for (int y = 0; y < source.height; ++y)
        std::transform(source.AlphaRow(y), source.AlphaRow(y) + source.width, std::back_inserter(coverage),
                       [](uint8_t alpha) { return static_cast<uint8_t>((alpha + 1) / 2); });
    BlitGlyphSmooth(target, { source.x, source.y, source.width, source.height, 0, coverage.data(),
                              static_cast<uint16_t>(source.opacity * 257) });
}

const struct Routine {
    const char* name;
    BlitRoutine draw;
    int (*reference)(const Pixel&);
} routines[] = {
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
    { "Glyph", DrawGlyph, [](const Pixel& p) { return Blend(p.opacity * 257, p.target, 16 - (p.alpha + 1) / 2, 16); } },
};

/// The ends of the routines' steps among others.
constexpr uint32_t opacities[] = { 0, 7, 8, 60, 133, 248, 249, 255 };

class Random
{
public:
    int operator()(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }

    uint16_t Colour() { return static_cast<uint16_t>((*this)(0, 4) == 0 ? COLOR_KEY : (*this)(0, 0xFFFF)); }
    /// Runs of 31 and of 0 are common, so that whole groups are.
    uint8_t Alpha()
    {
        if (run-- <= 0) {
            run = (*this)(0, 40);
            runAlpha = (*this)(0, 2) == 0 ? (*this)(0, 31) : (*this)(0, 1) * 31;
        }
        return static_cast<uint8_t>((*this)(0, 9) == 0 ? (*this)(0, 31) : runAlpha);
    }

private:
    std::mt19937 engine{ 20240607 };
    int run = 0;
    int runAlpha = 0;
};

/// A random picture with columns beside its rows and rows above and below. The planes end where reading must, so that a
/// sanitiser sees more.
struct TestPicture {
    TestPicture(Random& random, int width, int height, int columnsAround, int rowsAround)
    {
        image.width = width;
        image.height = height;
        image.pitch = (2 * (width + 2 * columnsAround) + 7) / 8 * 8;
        plane.resize(static_cast<size_t>(image.pitch / 2 * (height + 2 * rowsAround)));
        alpha.resize(plane.size() + 3);
        std::ranges::generate(plane, [&] { return random.Colour(); });
        std::ranges::generate(alpha, [&] { return random.Alpha(); });
        const int start = image.pitch / 2 * rowsAround + columnsAround;
        image.pixels = plane.data() + start;
        image.alpha = alpha.data() + start;
        image.pixelsBorrowed = image.alphaBorrowed = true;
    }

    std::vector<uint16_t> plane;
    std::vector<uint8_t> alpha;
    CImage image;
};

/// The target's plane as it should be after the source is drawn.
std::vector<uint16_t> Expected(const Routine& routine, const TestPicture& target, const CImage& source)
{
    std::vector<uint16_t> plane = target.plane;
    const int left = target.image.x - source.x;
    const int top = target.image.y - source.y;
    const int first = std::max(0, -left);
    for (int y = std::max(0, -top); y < source.height && top + y < target.image.height; ++y) {
        for (int x = first; x < source.width && left + x < target.image.width; ++x) {
            const uint8_t* group = source.AlphaRow(y) + first + (x - first) / 4 * 4;
            const bool opaque = std::count(group, group + 4, 31) == 4;
            uint16_t& pixel = plane[static_cast<size_t>(target.image.Row(top + y) + left + x - target.plane.data())];
            pixel = static_cast<uint16_t>(routine.reference(
                { source.Row(y)[x], pixel, source.AlphaRow(y)[x], opaque, static_cast<int>(source.opacity) }));
        }
    }
    return plane;
}

void CompareWithReferences()
{
    constexpr int ROWS = 2;
    Random random;
    size_t draws = 0;
    for (const Routine& routine : routines) {
        for (int width = 1; width <= 140; ++width) {
            for (const int cut : { 0, -1 - width % 11, 1 + width % 11 }) { // nothing; left and top; right and bottom
                TestPicture source(random, width, ROWS, random(0, 5), 0);
                TestPicture target(random, width, ROWS, random(0, 5), 1);
                source.image.opacity = opacities[draws++ % std::size(opacities)];
                source.image.x = random(-9, 9);
                source.image.y = random(-9, 9);
                target.image.x = source.image.x + cut;
                target.image.y = source.image.y + std::clamp(cut, -1, 1);
                const std::vector<uint16_t> expected = Expected(routine, target, source.image);
                routine.draw(target.image, source.image);
                ASSERT_EQ(target.plane, expected) << routine.name << ", " << width << " pixels, cut by " << cut;
            }
        }
    }
}

void CompareConverters()
{
    constexpr int SKIP = 6; // pixels behind a row of the surface
    Random random;
    for (int width = 1; width <= 140; ++width) {
        const TestPicture picture(random, width, 2, 1, 0);
        const int count = width / 4 * 4;
        std::vector<uint16_t> copied(static_cast<size_t>(2 * (count + SKIP)), 0xABCD);
        std::vector<uint16_t> expected = copied;
        std::vector<uint16_t> in555 = copied;
        std::vector<uint16_t> expected555 = copied;
        for (int i = 0; i < 2 * count; ++i) {
            const uint16_t pixel = picture.image.Row(i / count)[i % count];
            const size_t place = static_cast<size_t>(i / count * SKIP + i);
            expected[place] = pixel;
            expected555[place] = static_cast<uint16_t>(pixel / 2048 * 1024 + pixel / 64 % 32 * 32 + pixel % 32);
        }
        ConvertRowsCopy(picture.image, copied.data(), 2 * SKIP);
        ConvertRows555(picture.image, in555.data(), 2 * SKIP);
        ASSERT_EQ(copied, expected) << width;
        ASSERT_EQ(in555, expected555) << width;
    }
}
}

TEST(Blits, EqualPlainReferencesAtEveryWidthAndClippedEdgeOnEachInstructionSet)
{
    std::set<const RowKernels*> forms;
    OnEveryInstructionSet([&forms] {
        forms.insert(&BestRowKernels());
        CompareWithReferences();
        CompareConverters();
    });
    EXPECT_EQ(forms.size(), hwy::SupportedAndGeneratedTargets().size()) << "each has its own kernels";
}

TEST(Blits, DrawNothingFromPositionsThatMissTheTarget)
{
    constexpr int LOWEST = std::numeric_limits<int>::min();
    constexpr int HIGHEST = std::numeric_limits<int>::max();
    constexpr struct {
        int position, anchor;
    } farPlaces[] = { { -8, 0 },           { 8, 0 },       { 0, 8 },           { LOWEST, 0 },
                      { LOWEST, HIGHEST }, { HIGHEST, 0 }, { HIGHEST, LOWEST } };
    Random random;
    TestPicture target(random, 8, 8, 1, 1);
    TestPicture source(random, 8, 8, 1, 1);
    const std::vector<uint16_t> before = target.plane;
    for (const auto& [position, anchor] : farPlaces) {
        for (int32_t CImage::*axis : { &CImage::x, &CImage::y }) {
            target.image.x = target.image.y = source.image.x = source.image.y = 0;
            target.image.*axis = position;
            source.image.*axis = anchor;
            BlitAlpha(target.image, source.image);
            EXPECT_EQ(target.plane, before) << position << " anchor " << anchor;
        }
    }
}

TEST(PixelRules, GiveTheHandWorkedValues)
{
    constexpr struct {
        const char* reason;
        uint16_t actual, expected;
    } rules[] = {
        { "green saturates and carries one into red", AddPixel(0x07E0, 0x0020), 0x0FE0 },
        { "blue saturates and carries one into green", AddPixel(0x001F, 0x0001), 0x003F },
        { "green floors and borrows one from red", SubPixel(0x0020, 0x0800), 0x0000 },
        { "blue floors and borrows one from green", SubPixel(0x0001, 0x0040), 0x0020 },
        { "alpha 31 keeps 1/32 of a brighter target", AlphaPixel(0x0000, 0xFFFF, 31), 0x0820 },
        { "a falling channel is rounded down", AlphaPixel(0x0000, 0x001F, 31), 0x0000 },
        { "opacity 1/32 leaves nothing of alpha 31", AlphaOpacityPixel(0xFFFF, 0x1234, 31, 1), 0x1234 },
        { "the key stays transparent at every weight", OpacityColorKeyPixel(0xFFFF, 0xABCD, 0), 0xABCD },
        { "almost the key is drawn", ColorKeyPixel(0xFFDF, 0x1234), 0xFFDF },
        { "half coverage rounds down, but for what green carries into red", GlyphPixel(0xFFFF, 0x0000, 8), 0x83EF },
    };
    for (const auto& rule : rules)
        EXPECT_EQ(rule.actual, rule.expected) << rule.reason;
}
