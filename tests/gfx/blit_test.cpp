#include "gfx/image.h"

#include "gfx/clip.h"
#include "gfx/pixel_rules.h"
#include "gfx/row_kernels.h"
#include "support/instruction_sets.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <set>
#include <vector>

namespace
{
/// What a reference knows of one pixel.
struct Pixel {
    uint16_t source;
    uint16_t target;
    int alpha;
    bool opaqueGroup; ///< all four alpha values of its group are 31
    int opacity;

    int OtherWeight() const { return (256 - opacity) / 8; }
};

/// 0 to 16 for any alpha.
uint8_t Coverage(int alpha)
{
    return static_cast<uint8_t>((alpha + 1) / 2);
}

constexpr uint16_t GLYPH_COLOUR = 0xB5A9;

void DrawGlyph(CImage& target, const CImage& source)
{
    std::vector<uint8_t> coverage;
    for (int y = 0; y < source.height; ++y)
        std::transform(source.AlphaRow(y), source.AlphaRow(y) + source.width, std::back_inserter(coverage), Coverage);
    BlitGlyphSmooth(target, { source.x, source.y, source.width, source.height, 0, coverage.data(), GLYPH_COLOUR });
}

/// What the display does to rows of its own, placed and clipped as the others are.
void DrawIn555(CImage& target, const CImage& source)
{
    const SourceBox box = { source.x, source.y, source.width, source.height };
    ForEachVisibleRow(target, box, [&](int row, int column, uint16_t* pixels, size_t count) {
        BestRowKernels().toRgb555(pixels, count, source.Row(row) + column);
    });
}

/// The references are the rules for one pixel, which have a table of their own below.
const struct Routine {
    const char* name;
    BlitRoutine draw;
    uint16_t (*reference)(const Pixel&);
} routines[] = {
    { "Copy", BlitCopy, [](const Pixel& p) { return p.source; } },
    { "ColorKey", BlitColorKey, [](const Pixel& p) { return ColorKeyPixel(p.source, p.target); } },
    { "Add", BlitAdd, [](const Pixel& p) { return AddPixel(p.source, p.target); } },
    { "Sub", BlitSub, [](const Pixel& p) { return SubPixel(p.source, p.target); } },
    { "Alpha", BlitAlpha,
      [](const Pixel& p) { return p.opaqueGroup ? p.source : AlphaPixel(p.source, p.target, p.alpha); } },
    { "AlphaOpacity", BlitAlphaOpacity,
      [](const Pixel& p) { return AlphaOpacityPixel(p.source, p.target, p.alpha, p.opacity / 8 + 1); } },
    { "OpacityColorKey", BlitOpacityColorKey,
      [](const Pixel& p) {
          return p.opacity < 8 ? p.target : OpacityColorKeyPixel(p.source, p.target, p.OtherWeight());
      } },
    { "FadeToBlack", BlitFadeToBlack, [](const Pixel& p) { return FadeToBlackPixel(p.source, p.OtherWeight()); } },
    { "Glyph", DrawGlyph, [](const Pixel& p) { return GlyphPixel(GLYPH_COLOUR, p.target, Coverage(p.alpha)); } },
    { "555", DrawIn555, [](const Pixel& p) { return Rgb555Pixel(p.source); } },
};

/// The ends of the routines' steps among others.
constexpr uint32_t opacities[] = { 0, 7, 8, 60, 133, 248, 249, 255 };

struct Random {
    int operator()(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }

    uint16_t Colour() { return static_cast<uint16_t>((*this)(0, 4) == 0 ? COLOR_KEY : (*this)(0, 0xFFFF)); }
    /// Whole groups of 31 are common.
    uint8_t Alpha() { return static_cast<uint8_t>((*this)(0, 5) == 0 ? (*this)(0, 31) : 31); }

    std::mt19937 engine{ 20240607 };
};

/// A random picture with columns beside its rows and rows above and below.
struct TestPicture {
    TestPicture(Random& random, int width, int height, int columnsAround, int rowsAround)
    {
        EXPECT_TRUE(whole.Create(width + 2 * columnsAround, height + 2 * rowsAround) && whole.CreateAlpha());
        std::generate(whole.pixels, whole.Row(whole.height), [&] { return random.Colour(); });
        std::generate(whole.alpha, whole.AlphaRow(whole.height), [&] { return random.Alpha(); });
        EXPECT_TRUE(image.CreateView(whole, columnsAround, rowsAround, width, height));
    }
    std::vector<uint16_t> Plane() const { return { whole.Row(0), whole.Row(whole.height) }; }

    CImage whole;
    CImage image;
};

/// The target's plane as it should be after the source is drawn.
std::vector<uint16_t> Expected(const Routine& routine, const TestPicture& target, const CImage& source)
{
    std::vector<uint16_t> plane = target.Plane();
    const int left = target.image.x - source.x;
    const int top = target.image.y - source.y;
    const int first = std::max(0, -left);
    for (int y = std::max(0, -top); y < source.height && top + y < target.image.height; ++y) {
        for (int x = first; x < source.width && left + x < target.image.width; ++x) {
            const uint8_t* group = source.AlphaRow(y) + first + (x - first) / 4 * 4;
            const bool opaque = std::count(group, group + 4, 31) == 4;
            uint16_t& pixel = plane[static_cast<size_t>(target.image.Row(top + y) + left + x - target.whole.pixels)];
            pixel = routine.reference(
                { source.Row(y)[x], pixel, source.AlphaRow(y)[x], opaque, static_cast<int>(source.opacity) });
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
                ASSERT_EQ(target.Plane(), expected) << routine.name << ", " << width << " pixels, cut by " << cut;
            }
        }
    }
}
}

TEST(Blits, EqualTheirPixelRulesAtEveryWidthAndClippedEdgeOnEachInstructionSet)
{
    std::set<const RowKernels*> forms;
    OnEveryInstructionSet([&forms] {
        forms.insert(&BestRowKernels());
        CompareWithReferences();
    });
    EXPECT_EQ(forms.size(), hwy::SupportedAndGeneratedTargets().size()) << "each has its own kernels";
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
        { "30 of 32 parts of white remain, rounded down", OpacityColorKeyPixel(0x0000, 0xFFFF, 30), 0xEF7D },
        { "black of weight 8 takes a quarter, rounded up", FadeToBlackPixel(0xFFFF, 8), 0xC5F7 },
        { "five bits a channel drop the lowest of green", Rgb555Pixel(0x8C71), 0x4631 },
        { "half coverage rounds down, but for what green carries into red", GlyphPixel(0xFFFF, 0x0000, 8), 0x83EF },
    };
    for (const auto& rule : rules)
        EXPECT_EQ(rule.actual, rule.expected) << rule.reason;
}
