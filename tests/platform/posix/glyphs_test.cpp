#include "platform/gdi.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{
constexpr MAT2 identity = { { 0, 1 }, { 0, 0 }, { 0, 0 }, { 0, 1 } };
constexpr BYTE GUARD = 0xEE;

/// The font that the game asks for, selected into a context; a near relative does where there is none of that name.
struct GlyphTest : testing::Test {
    GlyphTest() { SelectObject(dc, font); }
    ~GlyphTest() override
    {
        DeleteDC(dc);
        DeleteObject(font);
    }
    DWORD Get(UINT code, DWORD room, BYTE* target)
    {
        return GetGlyphOutlineA(dc, code, GGO_GRAY4_BITMAP, &metrics, room, target, &identity);
    }
    /// Its rows; nothing is written behind them.
    std::vector<BYTE> Get(UINT code)
    {
        const DWORD size = Get(code, 0, nullptr);
        std::vector<BYTE> bytes(size + 1, GUARD);
        Get(code, size, bytes.data());
        EXPECT_EQ(bytes.back(), GUARD) << code;
        bytes.pop_back();
        return bytes;
    }

    GLYPHMETRICS metrics = {}; ///< of the latest glyph
    HDC dc = CreateCompatibleDC(nullptr);
    HFONT font = CreateFontA(13, 5, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, PROOF_QUALITY, 0, "No Such Face");
};

TEST_F(GlyphTest, AreTightBoxesWithinTheCell)
{
    TEXTMETRICA text = {};
    ASSERT_TRUE(GetTextMetricsA(dc, &text));
    EXPECT_EQ(text.tmHeight, 13);
    EXPECT_EQ(text.tmAscent + text.tmDescent, text.tmHeight);
    EXPECT_EQ(text.tmAveCharWidth, 5);
    for (const char c : std::string("0123456789AMWgjy")) {
        const std::vector<BYTE> bytes = Get(static_cast<UINT>(c));
        const DWORD rowBytes = (metrics.gmBlackBoxX + 3) & ~3U;
        ASSERT_EQ(bytes.size(), rowBytes * metrics.gmBlackBoxY) << c;
        EXPECT_LE(metrics.gmptGlyphOrigin.y, text.tmAscent) << c;
        EXPECT_GE(metrics.gmptGlyphOrigin.y - static_cast<LONG>(metrics.gmBlackBoxY), -text.tmDescent) << c;
        const BYTE most = *std::max_element(bytes.begin(), bytes.end());
        EXPECT_TRUE(most > 8 && most <= 16) << "a bold stroke is more than half covered";
        EXPECT_NE(std::count(bytes.begin(), bytes.begin() + rowBytes, 0), rowBytes) << "empty first row " << c;
        EXPECT_NE(std::count(bytes.end() - rowBytes, bytes.end(), 0), rowBytes) << "empty last row " << c;
    }
}

TEST_F(GlyphTest, StayWithinTheBufferAndFollowTheWindowsCodePage)
{
    const std::vector<BYTE> bar = Get('|');
    const DWORD row = (metrics.gmBlackBoxX + 3) & ~3U;
    EXPECT_TRUE(std::equal(bar.begin() + row, bar.end() - 2 * row, bar.begin() + 2 * row)) << "all its rows are alike";

    std::vector<BYTE> small(8, GUARD);
    EXPECT_EQ(Get('W', 8, small.data()), GDI_ERROR);
    EXPECT_EQ(std::count(small.begin(), small.end(), GUARD), 8);
    EXPECT_EQ(Get(' ').size(), 0U);
    EXPECT_GT(metrics.gmCellIncX, 0);
    const std::vector<BYTE> missing = Get(0x8D); // a gap in the page
    EXPECT_NE(Get(0x80), missing) << "euro sign";
    EXPECT_NE(Get(0x9F), missing) << "Y with diaeresis";
    EXPECT_EQ(Get(0xE974), missing) << "two bytes";
    DeleteObject(CreateFontA(18, 6, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, PROOF_QUALITY, 0, "Verdana"));
    EXPECT_EQ(Get(0x8D), missing) << "the other font is still there";
}

}
