#include "gfx/text_image.h"

#include "gfx/error.h"
#include "gfx/image.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <list>
#include <vector>

namespace
{
constexpr uint16_t WHITE = 0xFFFF;
using Pixels = std::vector<uint16_t>;

/// A text image in the strip's font, and a black picture to draw into.
class TextImage : public testing::Test
{
protected:
    TextImage()
    {
        Create(TEXT_GLYPH_SLOTS);
        picture.Create(160, 32);
    }
    ~TextImage() override
    {
        text.TextImageFree();
        DeleteObject(font);
    }

    void Create(int slots) { ASSERT_TRUE(text.TextImageCreate(font, TEXT_GREY_LEVELS, slots)); }

    Pixels Draw(int x, const char* line)
    {
        picture.Fill(0);
        text.TextDraw(picture, x, 2, WHITE, line);
        return { picture.pixels, picture.Row(picture.height) };
    }
    int Advance(uint32_t code) { return text.GetGlyph(code)->advance; }

    HFONT font = CreateVerdana(13, 5);
    CTextImage text;
    CImage picture;
};

/// A glyph's numbers and coverage.
std::vector<int> Contents(const CGlyph& glyph)
{
    std::vector<int> contents(glyph.bits.get(), glyph.bits.get() + glyph.width * glyph.height);
    contents.insert(contents.end(), { glyph.offsetX, glyph.offsetY, glyph.width, glyph.height, glyph.advance });
    return contents;
}
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
    EXPECT_TRUE(std::ranges::count(Draw(3, "0123456789"), WHITE) > 20) << "bold figures have fully covered pixels";
    EXPECT_TRUE(picture.x == 0 && picture.y == 0);
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
        { "\x80\x41", { 0x80, 'A' }, "128 is a character of its own" },
        { "\x81\x41", { 0x8141 }, "from 129 on two bytes are one character" },
        { "\x41\xFF\xFF\x41", { 'A', 0xFFFF, 'A' }, "any second byte" },
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

TEST_F(TextImage, KeepsItsKeysSortedAndItsGlyphsRight)
{
    constexpr int SMALL = 8;
    CTextImage reference;
    ASSERT_TRUE(reference.TextImageCreate(font, TEXT_GREY_LEVELS, TEXT_GLYPH_SLOTS));
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
        ASSERT_EQ(Contents(*glyph), Contents(*reference.GetGlyph(code))) << code;
        std::vector<uint32_t> expected(recent.begin(), recent.end());
        std::ranges::sort(expected);
        std::vector<uint32_t> codes;
        for (int k = 0; k < text.count; ++k)
            codes.push_back(text.keys[k].code);
        ASSERT_EQ(codes, expected) << "after request " << i;
    }
    EXPECT_LT(text.clock, 200U) << "the counters are reduced";
}

TEST_F(TextImage, AsksTheFontOnceAndSkipsWhatItCannotRender)
{
    Create(1);
    const Pixels shown = Draw(5, "W");
    const HDC dc = text.dc;
    text.dc = nullptr; // any call to the font fails from here on
    lastError = ENGINE_NO_ERROR;
    EXPECT_EQ(Draw(5, "W"), shown);
    EXPECT_EQ(lastError, ENGINE_NO_ERROR);
    const Pixels blank(shown.size());
    EXPECT_EQ(Draw(5, "L"), blank);
    EXPECT_EQ(lastError, ENGINE_CREATE_CHAR);
    EXPECT_EQ(Draw(5, "L"), blank) << "the slot must not show the character that it held before";
    EXPECT_EQ(text.TextWidth("L"), 0);
    text.dc = dc;
    EXPECT_FALSE(text.TextImageCreate(font, TEXT_GREY_LEVELS, 0));
    EXPECT_EQ(lastError, ENGINE_CREATE_FONT);
    EXPECT_EQ(Draw(5, "W"), blank) << "nothing was made";
}
