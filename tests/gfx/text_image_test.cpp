#include "gfx/text_image.h"

#include "gfx/error.h"
#include "gfx/image.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace
{
using Pixels = std::vector<uint16_t>;

/// A text image in the stand-in font, of which nothing is left to delete, and a black picture to draw into.
struct TextImage : testing::Test {
    TextImage() { picture.Create(40, 20); }
    void Create(int slots) { ASSERT_TRUE(text.TextImageCreate(CreateVerdana(13, 5), TEXT_GREY_LEVELS, slots)); }
    Pixels Draw(CTextImage& writer, const char* line)
    {
        picture.Fill(0);
        writer.TextDraw(picture, 5, 2, 0xFFFF, line);
        return { picture.pixels, picture.Row(picture.height) };
    }

    CTextImage text;
    CImage picture;
};
}

TEST_F(TextImage, JoinsALeadByteWithTheNext)
{
    Create(TEXT_GLYPH_SLOTS);
    const auto advance = [this](uint32_t code) { return text.GetGlyph(code)->advance; };
    EXPECT_EQ(text.TextWidth("\x80\x41"), advance(0x80) + advance('A')) << "128 is a character of its own";
    EXPECT_EQ(text.TextWidth("\x81\x41\xFF\xFF"), advance(0x8141) + advance(0xFFFF)) << "with any second byte";
    EXPECT_EQ(text.TextWidth("A\x81"), advance('A')) << "a lead byte at the end is dropped";
    EXPECT_EQ(text.count, 4) << "no other character was asked for";
}

TEST_F(TextImage, KeepsTheGlyphsUsedLast)
{
    constexpr size_t SLOTS = 8;
    CTextImage reference;
    ASSERT_TRUE(reference.TextImageCreate(CreateVerdana(13, 5), TEXT_GREY_LEVELS, TEXT_GLYPH_SLOTS));
    Create(SLOTS);
    const HDC dc = text.dc;
    std::string recent; // the oldest first
    std::mt19937 random(1);
    for (int i = 0; i < 3000; ++i) {
        const std::string line(1, static_cast<char>('A' + random() % 20));
        text.dc = recent.find(line) != std::string::npos ? nullptr : dc; // any call to the font fails
        ASSERT_EQ(Draw(text, line.c_str()), Draw(reference, line.c_str())) << line << " in request " << i;
        std::erase(recent, line[0]);
        recent.erase(0, recent.size() == SLOTS ? 1 : 0);
        recent += line;
    }
    text.dc = dc;
    EXPECT_LT(text.clock, 200U) << "the counters are reduced";
}

TEST_F(TextImage, AsksTheFontOnceAndSkipsWhatItCannotRender)
{
    Create(TEXT_GLYPH_SLOTS);
    Create(1); // which frees what was there
    const Pixels shown = Draw(text, "W");
    const Pixels blank(shown.size());
    lastError = ENGINE_NO_ERROR;
    EXPECT_EQ(Draw(text, "\x81 "), blank);
    EXPECT_EQ(lastError, ENGINE_CREATE_CHAR) << "a character whose bits cannot be had";
    EXPECT_EQ(Draw(text, "W"), shown);
    const HDC dc = text.dc;
    text.dc = nullptr; // any call to the font fails from here on
    lastError = ENGINE_NO_ERROR;
    EXPECT_EQ(Draw(text, "W"), shown);
    EXPECT_EQ(Draw(text, "L"), blank);
    EXPECT_EQ(lastError, ENGINE_CREATE_CHAR);
    EXPECT_EQ(Draw(text, "L"), blank) << "the slot must not show the character that it held before";
    text.dc = dc;
    EXPECT_FALSE(text.TextImageCreate(nullptr, TEXT_GREY_LEVELS, 0));
    EXPECT_EQ(lastError, ENGINE_CREATE_FONT);
    EXPECT_EQ(Draw(text, "W"), blank) << "nothing was made";
}
