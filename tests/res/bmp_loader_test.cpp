#include "gfx/blit.h"
#include "gfx/error.h"
#include "res/image_loader.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace
{
using Bytes = std::vector<uint8_t>;

void Put(Bytes& file, size_t place, size_t value)
{
    for (int i = 0; i < 4; ++i)
        file[place + static_cast<size_t>(i)] = static_cast<uint8_t>(value >> 8 * i);
}

/// A BMP file; `rows` are the stored rows with their padding, the bottom one first.
Bytes MakeBmp(size_t width, size_t height, size_t bitCount, const Bytes& rows, const Bytes& palette = {})
{
    Bytes file(54);
    file[0] = 'B';
    file[1] = 'M';
    const std::pair<size_t, size_t> header[] = {
        { 10, 54 + palette.size() }, { 14, 40 }, { 18, width }, { 22, height }, { 28, bitCount },
        { 46, palette.size() / 4 }
    };
    for (const auto& [place, value] : header)
        Put(file, place, value);
    file.insert(file.end(), palette.begin(), palette.end());
    file.insert(file.end(), rows.begin(), rows.end());
    return file;
}

EngineError Load(CImage& image, const Bytes& bmp, const Bytes& mask = {})
{
    lastError = ENGINE_NO_ERROR;
    const bool loaded = LoadBmpImage(image, bmp.data(), static_cast<uint32_t>(bmp.size()), mask.data(),
                                     static_cast<uint32_t>(mask.size()));
    EXPECT_EQ(loaded, lastError == ENGINE_NO_ERROR);
    return static_cast<EngineError>(lastError);
}

const Bytes picture24 = MakeBmp(3, 2, 24, { 1, 1, 1,    0xFF, 0x80, 0x10, 0,    0, 0, 9, 9, 9, // bottom row
                                            0, 0, 0xFF, 0,    0xFF, 0,    0xFF, 0, 0, 9, 9, 9 });
const Bytes picture16 = MakeBmp(3, 2, 16, { 1, 0, 2, 0, 3, 0, 9, 9, 0x34, 0x12, 5, 0, 6, 0, 9, 9 });
const Bytes rows8 = { 0, 1, 0, 9, 1, 0, 1, 9 };
const Bytes picture8 = MakeBmp(3, 2, 8, rows8, { 0xFF, 0x80, 0x10, 0, 0x00, 0x00, 0xFF, 0 }); // of two colours
}

TEST(BmpLoader, ReadsEveryDepthBottomRowFirst)
{
    const struct {
        const char* what;
        Bytes bmp;
        uint16_t pixels[2][3];
    } cases[] = {
        { "24 bits", picture24, { { 0xF800, 0x07E0, 0x001F }, { 0, 0x141F, 0 } } },
        { "16 bits", picture16, { { 0x1234, 5, 6 }, { 1, 2, 3 } } },
        { "8 bits", picture8, { { 0xF800, 0x141F, 0xF800 }, { 0x141F, 0xF800, 0x141F } } },
        { "a palette of one colour keeps the others of the file before",
          MakeBmp(3, 2, 8, rows8, { 0, 0xFF, 0, 0 }),
          { { 0xF800, 0x07E0, 0xF800 }, { 0x07E0, 0xF800, 0x07E0 } } },
    };
    CImage image;
    ASSERT_TRUE(image.CreateAlpha());
    image.x = 5;
    image.blit = BlitAlpha;
    for (const auto& [what, bmp, pixels] : cases) {
        ASSERT_EQ(Load(image, bmp), ENGINE_NO_ERROR) << what;
        EXPECT_TRUE(image.x == 0 && !image.alpha && image.blit == BlitCopy) << "a fresh image";
        for (int y = 0; y < 2; ++y)
            EXPECT_TRUE(std::equal(pixels[y], pixels[y] + 3, image.Row(y))) << what << ", row " << y;
    }
}

TEST(BmpLoader, TakesTheAlphaFromTheMask)
{
    const Bytes alphas = { 31, 30, 30, 0, 1 };
    Bytes palette;
    for (const uint8_t green : Bytes{ 255, 254, 247, 7, 8 })
        palette.insert(palette.end(), { 0x55, green, 0xAA, 0 });
    const Bytes rows24 = { 1, 255, 1, 1, 254, 1, 1, 247, 1, 1, 7, 1, 1, 8, 1, 0 };
    const Bytes rows16 = { 0xFF, 0xE1, 0xFE, 0xE1, 0xFE, 0xE1, 0xE0, 0xE1, 0xE1, 0xE1, 0, 0 };
    const Bytes picture = MakeBmp(5, 1, 24, rows24);
    for (const Bytes& mask :
         { picture, MakeBmp(5, 1, 16, rows16), MakeBmp(5, 1, 8, { 0, 1, 2, 3, 4, 0, 0, 0 }, palette) }) {
        CImage image;
        ASSERT_EQ(Load(image, picture, mask), ENGINE_NO_ERROR);
        EXPECT_EQ(Bytes(image.alpha, image.alpha + 5), alphas);
    }
}

TEST(BmpLoader, EachDamageHasItsCodeInAPictureAndInAMask)
{
    constexpr struct {
        size_t place;
        size_t value;
        EngineError picture, mask;
        const char* why;
    } damages[] = {
        { 0, 'M' << 8 | 'X', ENGINE_LOAD_IMAGE, ENGINE_LOAD_IMAGE, "no BMP file" },
        { 10, 0xFFFFFFF0, ENGINE_LOAD_IMAGE, ENGINE_LOAD_IMAGE, "pixels behind the end" },
        { 18, 0, ENGINE_CREATE_IMAGE, ENGINE_CREATE_IMAGE, "no width" },
        { 18, 0xFFFFFFFD, ENGINE_CREATE_IMAGE, ENGINE_CREATE_IMAGE, "negative width" },
        { 18, 0x7FFFFFFF, ENGINE_CREATE_IMAGE, ENGINE_CREATE_IMAGE, "too large, and wider than the picture" },
        { 22, 0xFFFFFFFE, ENGINE_CREATE_IMAGE, ENGINE_CREATE_IMAGE, "negative height" },
        { 22, 1000, ENGINE_LOAD_IMAGE, ENGINE_CREATE_IMAGE, "rows behind the end, and higher than the picture" },
        { 28, 0, ENGINE_LOAD_IMAGE, ENGINE_LOAD_IMAGE, "no depth" },
        { 28, 8, ENGINE_LOAD_IMAGE, ENGINE_LOAD_IMAGE, "no room for a palette" },
        { 28, 32, ENGINE_LOAD_IMAGE, ENGINE_LOAD_IMAGE, "no such depth" },
    };
    for (const auto& [place, value, picture, mask, why] : damages) {
        Bytes damaged = picture24;
        Put(damaged, place, value);
        CImage image;
        EXPECT_EQ(Load(image, damaged), picture) << why;
        EXPECT_EQ(Load(image, picture24, damaged), mask) << why;
        EXPECT_EQ(image.Row(1)[1], 0x141F) << "the colours stay loaded";
    }
    for (const Bytes& whole : { picture24, picture16, picture8 })
        for (size_t size = 1; size < whole.size(); ++size) { // no bytes would be no mask
            CImage image;
            const Bytes cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size));
            EXPECT_EQ(Load(image, cut), ENGINE_LOAD_IMAGE) << size;
            EXPECT_EQ(Load(image, whole, cut), ENGINE_LOAD_IMAGE) << size;
        }
}
