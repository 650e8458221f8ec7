#include "gfx/blit.h"
#include "gfx/error.h"
#include "res/image_loader.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace
{
using Bytes = std::vector<uint8_t>;

void Append(Bytes& bytes, uint64_t value, int count)
{
    for (; count > 0; --count, value >>= 8)
        bytes.push_back(static_cast<uint8_t>(value));
}

/// A BMP file; `rows` are the stored rows with their padding, the bottom one first.
Bytes MakeBmp(int width, int height, uint16_t bitCount, const Bytes& rows, const Bytes& palette = {})
{
    Bytes bytes{ 'B', 'M' };
    Append(bytes, 0, 8);
    Append(bytes, 54 + palette.size(), 4);
    Append(bytes, 40, 4);
    Append(bytes, static_cast<uint32_t>(width), 4);
    Append(bytes, static_cast<uint32_t>(height), 4);
    Append(bytes, 1, 2);
    Append(bytes, bitCount, 2);
    Append(bytes, 0, 16);
    Append(bytes, palette.size() / 4, 4);
    Append(bytes, 0, 4);
    bytes.insert(bytes.end(), palette.begin(), palette.end());
    bytes.insert(bytes.end(), rows.begin(), rows.end());
    return bytes;
}

Bytes GreyRow(const Bytes& levels)
{
    Bytes row;
    for (const uint8_t level : levels)
        row.insert(row.end(), 3, level);
    row.resize((row.size() + 3) & ~size_t{ 3 });
    return row;
}

bool Load(CImage& image, const Bytes& bmp)
{
    lastError = ENGINE_NO_ERROR;
    return LoadBmpImage(image, bmp.data(), static_cast<uint32_t>(bmp.size()), nullptr, 0);
}

bool LoadMasked(CImage& image, const Bytes& bmp, const Bytes& mask)
{
    lastError = ENGINE_NO_ERROR;
    return LoadBmpImage(image, bmp.data(), static_cast<uint32_t>(bmp.size()), mask.data(),
                        static_cast<uint32_t>(mask.size()));
}

const Bytes picture24 = MakeBmp(3, 2, 24, { 1, 1, 1,    0xFF, 0x80, 0x10, 0,    0, 0, 9, 9, 9, // bottom row
                                            0, 0, 0xFF, 0,    0xFF, 0,    0xFF, 0, 0, 9, 9, 9 });
const Bytes picture16 = MakeBmp(3, 2, 16, { 1, 0, 2, 0, 3, 0, 9, 9, 0x34, 0x12, 5, 0, 6, 0, 9, 9 });
const Bytes picture8 =
    MakeBmp(3, 2, 8, { 0, 1, 0, 9, 1, 0, 1, 9 }, { 0xFF, 0x80, 0x10, 0, 0x00, 0x00, 0xFF, 0 }); // of two colours
}

TEST(BmpLoader, ReadsEveryDepthBottomRowFirst)
{
    CImage image;
    ASSERT_TRUE(image.CreateAlpha());
    image.x = 5;
    image.blit = BlitAlpha;
    ASSERT_TRUE(Load(image, picture24));
    EXPECT_TRUE(image.x == 0 && !image.alpha && image.blit == BlitCopy) << "a fresh image";
    EXPECT_EQ(image.Row(1)[1], 0x141F);
    EXPECT_EQ(image.Row(0)[0], 0xF800);
    ASSERT_TRUE(Load(image, picture16));
    EXPECT_EQ(image.Row(0)[0], 0x1234);
    EXPECT_EQ(image.Row(1)[2], 3);
    ASSERT_TRUE(Load(image, picture8));
    EXPECT_EQ(image.Row(1)[0], 0x141F);
    EXPECT_EQ(image.Row(0)[2], 0xF800);
}

TEST(BmpLoader, KeepsPaletteEntriesThatAFileDoesNotReplace)
{
    CImage image;
    const Bytes twoColours{ 0, 0xFF, 0, 0, 0xFF, 0, 0, 0 };
    const Bytes oneColour{ 0, 0, 0xFF, 0 };
    ASSERT_TRUE(Load(image, MakeBmp(4, 1, 8, { 0, 1, 0, 1 }, twoColours)));
    ASSERT_TRUE(Load(image, MakeBmp(4, 1, 8, { 0, 1, 0, 1 }, oneColour)));
    EXPECT_EQ(image.Row(0)[0], 0xF800);
    EXPECT_EQ(image.Row(0)[1], 0x001F);
}

TEST(BmpLoader, TakesTheAlphaFromTheMask)
{
    const Bytes greens{ 255, 254, 250, 248, 247, 7, 8, 0 };
    const Bytes alphas{ 31, 30, 30, 30, 30, 0, 1, 0 };
    Bytes palette;
    for (const uint8_t green : greens)
        palette.insert(palette.end(), { 0x55, green, 0xAA, 0 });
    const Bytes indices{ 0, 1, 2, 3, 4, 5, 6, 7 };
    Bytes rows16;
    for (const uint8_t alpha : alphas)
        Append(rows16, 0xFFE0u | alpha, 2);

    const Bytes mask24 = MakeBmp(8, 1, 24, GreyRow(greens));
    for (const Bytes& mask : { mask24, MakeBmp(8, 1, 16, rows16), MakeBmp(8, 1, 8, indices, palette) }) {
        CImage image;
        ASSERT_TRUE(LoadMasked(image, mask24, mask));
        EXPECT_EQ(Bytes(image.alpha, image.alpha + 8), alphas);
    }
}

TEST(BmpLoader, MasksBelongToTheirPictures)
{
    CImage image;
    EXPECT_FALSE(LoadMasked(image, picture24, MakeBmp(2, 2, 24, Bytes(16))));
    EXPECT_EQ(lastError, ENGINE_CREATE_IMAGE);
    EXPECT_EQ(image.Row(1)[1], 0x141F) << "the colours stay loaded";
    EXPECT_FALSE(LoadMasked(image, picture24, MakeBmp(3, 2, 32, Bytes(24))));
    EXPECT_EQ(lastError, ENGINE_LOAD_IMAGE);
    EXPECT_FALSE(LoadMasked(image, picture24, Bytes(200)));
    EXPECT_EQ(lastError, ENGINE_LOAD_IMAGE);
}

TEST(BmpLoader, RefusesImpossibleHeaders)
{
    struct HeaderCase {
        int width;
        int height;
        uint16_t bitCount;
        EngineError code;
    };
    for (const HeaderCase& c :
         { HeaderCase{ 3, -2, 24, ENGINE_CREATE_IMAGE }, HeaderCase{ -3, 2, 24, ENGINE_CREATE_IMAGE },
           HeaderCase{ 0, 0x7FFFFFFF, 24, ENGINE_CREATE_IMAGE },
           HeaderCase{ 0x7FFFFFFF, 0x7FFFFFFF, 24, ENGINE_CREATE_IMAGE },
           HeaderCase{ 20000, 20000, 24, ENGINE_CREATE_IMAGE }, HeaderCase{ 3, 2, 32, ENGINE_LOAD_IMAGE },
           HeaderCase{ 3, 2, 0, ENGINE_LOAD_IMAGE }, HeaderCase{ 3, 1000, 24, ENGINE_LOAD_IMAGE } }) {
        CImage image;
        EXPECT_FALSE(Load(image, MakeBmp(c.width, c.height, c.bitCount, Bytes(24))));
        EXPECT_EQ(lastError, c.code) << c.width << " x " << c.height << " x " << c.bitCount;
    }
}

TEST(BmpLoader, TruncatedFilesFail)
{
    for (const Bytes& whole : { picture24, picture16, picture8 })
        for (size_t size = 0; size < whole.size(); ++size) {
            CImage image;
            const Bytes cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size));
            EXPECT_FALSE(Load(image, cut)) << size;
            EXPECT_EQ(lastError, ENGINE_LOAD_IMAGE) << size;
            EXPECT_TRUE(size == 0 || !LoadMasked(image, whole, cut)) << size; // no bytes would be no mask
        }
}
