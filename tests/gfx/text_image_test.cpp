#include "gfx/text_image.h"

#include "gfx/error.h"
#include "gfx/image.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <list>
#include <string>
#include <vector>

namespace
{
constexpr int SLOTS = 128;
constexpr uint16_t WHITE = 0xFFFF;

/// A text image in the strip's font, and a black picture to draw into.
class TextImage : public testing::Test
{
protected:
    TextImage()
    {
        Create(SLOTS);
        picture.Create(160, 32);
    }
    ~TextImage() override
    {
        text.TextImageFree();
        DeleteObject(font);
    }

    void Create(int slots) { ASSERT_TRUE(text.TextImageCreate(font, 16, slots)); }

    std::vector<uint16_t> Draw(int x, const char* line)
    {
        picture.Fill(0);
        text.TextDraw(picture, x, 2, WHITE, line);
        return { picture.pixels, picture.Row(picture.height) };
    }
    int Advance(uint32_t code) { return text.GetGlyph(code)->advance; }

    HFONT font = CreateFontA(13, 5, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, PROOF_QUALITY, 0, "Verdana");
    CTextImage text;
    CImage picture;
};

/// Copies of a glyph's numbers and coverage.
struct GlyphCopy {
    explicit GlyphCopy(const CGlyph& glyph)
        : numbers{ glyph.offsetX, glyph.offsetY, glyph.width, glyph.height, glyph.advance },
          bits(glyph.bits.get(), glyph.bits.get() + glyph.width * glyph.height)
    {
    }
    bool operator==(const GlyphCopy&) const = default;

    std::vector<int> numbers;
    std::vector<uint8_t> bits;
};
}

TEST_F(TextImage, DrawsCachedCharactersWithoutAskingTheFont)
{
    const auto first = Draw(3, "0123456789 0");
    EXPECT_EQ(text.count, 11);
    const HDC dc = text.dc;
    text.dc = nullptr; // any call to the font fails from here on
    EXPECT_EQ(Draw(3, "0123456789 0"), first);
    EXPECT_EQ(text.TextWidth("9876543210"), 10 * Advance('0'));
    text.dc = dc;
    EXPECT_TRUE(std::ranges::count(first, WHITE) > 20) << "bold figures have fully covered pixels";
}

TEST_F(TextImage, PlacesTheBlackBoxFromTheTopOfTheCell)
{
    const CGlyph& glyph = *text.GetGlyph('L');
    Draw(20, "L");
    const auto hasInk = [&](int row) { return std::any_of(picture.Row(row), picture.Row(row + 1), std::identity()); };
    EXPECT_TRUE(hasInk(2 - glyph.offsetY) && !hasInk(1 - glyph.offsetY));
    EXPECT_TRUE(hasInk(1 + text.ascent) && !hasInk(2 + text.ascent)) << "L stands on the baseline";
    const uint16_t* row = picture.Row(1 + text.ascent);
    EXPECT_EQ(std::find_if(row, row + 160, std::identity()) - row, 20 - glyph.offsetX);
}

TEST_F(TextImage, JoinsALeadByteWithTheNext)
{
    const struct {
        const char* line;
        std::vector<uint32_t> codes;
        const char* why;
    } cases[] = {
        { "", {}, "nothing" },
        { " A", { ' ', 'A' }, "a space has a width" },
        { "\x80"
          "A",
          { 0x80, 'A' },
          "128 is a character of its own" },
        { "\x81"
          "A",
          { 0x8141 },
          "from 129 on two bytes are one character" },
        { "A\xFF\xFF"
          "A",
          { 'A', 0xFFFF, 'A' },
          "any second byte" },
        { "A\x81", { 'A' }, "a lead byte at the end is dropped" },
    };
    for (const auto& [line, codes, why] : cases) {
        int width = 0;
        for (const uint32_t code : codes)
            width += Advance(code);
        EXPECT_EQ(text.TextWidth(line), width) << why;
        EXPECT_LE(text.count, 6) << why;
    }
}

TEST_F(TextImage, GivesUpTheCharacterUsedLeastRecently)
{
    Create(2);
    for (const char c : { 'B', 'C', 'B', 'A' }) // B at 1, C at 2, B at 3; A takes C's slot, and 2 is taken off
        text.GetGlyph(static_cast<uint32_t>(c));
    EXPECT_EQ(text.keys[0].code, static_cast<uint32_t>('A'));
    EXPECT_EQ(text.keys[0].lastUse, 2U);
    EXPECT_EQ(text.keys[0].glyphIndex, 1);
    EXPECT_EQ(text.keys[1].code, static_cast<uint32_t>('B'));
    EXPECT_EQ(text.keys[1].lastUse, 1U);
    EXPECT_EQ(text.clock, 2U);
}

TEST_F(TextImage, KeepsItsKeysSortedAndItsGlyphsRight)
{
    constexpr int SMALL = 8;
    CTextImage reference;
    ASSERT_TRUE(reference.TextImageCreate(font, 16, SLOTS));
    Create(SMALL);
    std::list<uint32_t> recent; // the latest first
    uint32_t state = 1;
    for (int i = 0; i < 3000; ++i) {
        state = state * 214013 + 2531011;
        const uint32_t code = ' ' + (state >> 16) % 20;
        recent.remove(code);
        recent.push_front(code);
        if (recent.size() > SMALL)
            recent.pop_back();

        const CGlyph* glyph = text.GetGlyph(code);
        ASSERT_NE(glyph, nullptr);
        ASSERT_EQ(GlyphCopy(*glyph), GlyphCopy(*reference.GetGlyph(code))) << code;
        std::vector<uint32_t> expected(recent.begin(), recent.end());
        std::ranges::sort(expected);
        std::vector<uint32_t> codes;
        for (int k = 0; k < text.count; ++k)
            codes.push_back(text.keys[k].code);
        ASSERT_EQ(codes, expected) << "after request " << i;
    }
    EXPECT_LT(text.clock, 200U) << "the counters are reduced";
}

TEST_F(TextImage, SkipsACharacterThatCannotBeRendered)
{
    Create(1);
    Draw(5, "W");
    const HDC dc = text.dc;
    text.dc = nullptr;
    lastError = ENGINE_NO_ERROR;
    const auto blank = std::vector<uint16_t>(static_cast<size_t>(picture.pitch / 2 * picture.height));
    EXPECT_EQ(Draw(5, "L"), blank);
    EXPECT_EQ(lastError, ENGINE_CREATE_CHAR);
    EXPECT_EQ(Draw(5, "L"), blank) << "the slot must not show the character that it held before";
    EXPECT_EQ(text.TextWidth("L"), 0);
    text.dc = dc;
}
