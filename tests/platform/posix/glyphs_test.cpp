#include "gfx/text_image.h"
#include "platform/gdi.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{
constexpr MAT2 identity = { { 0, 1 }, { 0, 0 }, { 0, 0 }, { 0, 1 } };
constexpr BYTE GUARD = 0xEE;

struct Outline {
    GLYPHMETRICS metrics = {};
    DWORD size = 0;
    std::vector<BYTE> bytes; ///< some more than the glyph, GUARD at first
};

/// A font selected into a context of its own.
class Font
{
public:
    Font(int height, int width, const char* face = "Verdana")
        : font(CreateFontA(height, width, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, PROOF_QUALITY, 0, face))
    {
        SelectObject(dc, font);
    }
    ~Font()
    {
        DeleteDC(dc);
        DeleteObject(font);
    }

    Outline Get(UINT code)
    {
        Outline outline;
        outline.size = GetGlyphOutlineA(dc, code, GGO_GRAY4_BITMAP, &outline.metrics, 0, nullptr, &identity);
        outline.bytes.assign(outline.size + 16, GUARD);
        GetGlyphOutlineA(dc, code, GGO_GRAY4_BITMAP, &outline.metrics, outline.size, outline.bytes.data(), &identity);
        return outline;
    }

    HDC dc = CreateCompatibleDC(nullptr);
    HFONT font;
};

TEST(Glyphs, AreTightBoxesWithinTheCell)
{
    for (const auto& [height, width] : { std::pair(13, 5), std::pair(18, 6) }) { // the game's fonts
        Font font(height, width);
        TEXTMETRICA text = {};
        ASSERT_TRUE(GetTextMetricsA(font.dc, &text));
        EXPECT_EQ(text.tmHeight, height);
        EXPECT_EQ(text.tmAscent + text.tmDescent, text.tmHeight);
        EXPECT_EQ(text.tmAveCharWidth, width);
        for (const char c : std::string("0123456789AMWgjy")) {
            const auto [metrics, size, bytes] = font.Get(static_cast<UINT>(c));
            const DWORD rowBytes = (metrics.gmBlackBoxX + 3) & ~3U;
            ASSERT_EQ(size, rowBytes * metrics.gmBlackBoxY) << c;
            EXPECT_LE(metrics.gmptGlyphOrigin.y, text.tmAscent) << c;
            EXPECT_GE(metrics.gmptGlyphOrigin.y - static_cast<LONG>(metrics.gmBlackBoxY), -text.tmDescent) << c;
            const auto glyphEnd = bytes.begin() + size;
            const auto hasInk = [](BYTE level) { return level > 0; };
            EXPECT_LE(*std::max_element(bytes.begin(), glyphEnd), 16) << c;
            EXPECT_GT(*std::max_element(bytes.begin(), glyphEnd), 8) << "a bold stroke is more than half covered";
            EXPECT_EQ(std::count(glyphEnd, bytes.end(), GUARD), 16) << "written past the glyph " << c;
            EXPECT_TRUE(std::any_of(bytes.begin(), bytes.begin() + rowBytes, hasInk)) << "empty first row " << c;
            EXPECT_TRUE(std::any_of(glyphEnd - rowBytes, glyphEnd, hasInk)) << "empty last row " << c;
        }
    }
}

TEST(Glyphs, StayWithinTheBuffer)
{
    Font font(13, 5, "No Such Face Anywhere"); // a near relative does
    GLYPHMETRICS metrics = {};
    std::vector<BYTE> bytes(8, GUARD);
    EXPECT_EQ(GetGlyphOutlineA(font.dc, 'W', GGO_GRAY4_BITMAP, &metrics, 8, bytes.data(), &identity), GDI_ERROR);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), GUARD), 8);
    const Outline space = font.Get(' ');
    EXPECT_EQ(space.size, 0U);
    EXPECT_GT(space.metrics.gmCellIncX, 0);
}

TEST(Glyphs, FollowTheWindowsCodePage)
{
    Font font(18, 6);
    const std::vector<BYTE> missing = font.Get(0x8D).bytes; // a gap in the page
    EXPECT_NE(font.Get(0x80).bytes, missing) << "euro sign";
    EXPECT_NE(font.Get(0x9F).bytes, missing) << "Y with diaeresis";
    EXPECT_EQ(font.Get(0xC4).metrics.gmCellIncX, font.Get('A').metrics.gmCellIncX) << "A with diaeresis";
    EXPECT_GT(font.Get(0xE974).size, 0U) << "two bytes: the sign for a missing character";
}

TEST(Glyphs, AreMissedInAnOrderlyWayWhereNoFontIsInstalled)
{
    const TempFolder folder;
    folder.Write("none.conf", "<fontconfig/>");
    setenv("FONTCONFIG_FILE", (folder.Path() + "/none.conf").c_str(), 1);
    const Font font(13, 5);
    unsetenv("FONTCONFIG_FILE");
    EXPECT_EQ(font.font, nullptr);
    CTextImage text;
    EXPECT_FALSE(text.TextImageCreate(font.font, 16, 128));
}
}
