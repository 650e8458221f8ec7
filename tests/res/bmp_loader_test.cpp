#include "gfx/error.h"
#include "gfx/image.h"
#include "res/image_loader.h"
#include "support/file_bytes.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
using Bytes = std::vector<uint8_t>;

/// A BMP file of 3x2 pixels; `rows` are the stored rows with their padding, the bottom one first.
std::string MakeBmp(int bitCount, const Bytes& rows, const Bytes& palette = {})
{
    std::string file = BmpHeader(3, 2, bitCount, static_cast<int>(palette.size() / 4));
    file.append(palette.begin(), palette.end());
    return file.append(rows.begin(), rows.end());
}

EngineError Load(CImage& image, const std::string& bmp, const std::string& mask = {})
{
    const auto* const bytes = reinterpret_cast<const uint8_t*>(bmp.data());
    const auto* const maskBytes = mask.empty() ? nullptr : reinterpret_cast<const uint8_t*>(mask.data());
    lastError = ENGINE_NO_ERROR;
    const bool loaded =
        LoadBmpImage(image, bytes, static_cast<uint32_t>(bmp.size()), maskBytes, static_cast<uint32_t>(mask.size()));
    EXPECT_EQ(loaded, lastError == ENGINE_NO_ERROR);
    return static_cast<EngineError>(lastError);
}

const std::string picture24 = MakeBmp(24, { 1, 7, 1,    0xFF, 0x80, 0x10, 0,    8,    0, 9, 9, 9, // bottom row
                                            0, 0, 0xFF, 0,    0xFF, 0,    0xFF, 0xF7, 0, 9, 9, 9 });
const std::string picture16 = MakeBmp(16, { 1, 0, 0xE2, 0xFF, 31, 0, 9, 9, 0x34, 0x12, 5, 0, 30, 0, 9, 9 });
const Bytes rows8 = { 0, 1, 2, 9, 1, 0, 1, 9 };
const std::string picture8 = MakeBmp(8, rows8, { 0xFF, 0x80, 0x10, 0, 0, 0xFE, 0xFF, 0, 0, 0xFF, 0, 0 });
}

TEST(BmpLoader, ReadsEveryDepthBottomRowFirstAsPictureAndAsMask)
{
    const struct {
        const char* what;
        std::string bmp;
        uint16_t pixels[2][3];
        uint8_t alpha[2][3];
    } cases[] = {
        { "24 bits",
          picture24,
          { { 0xF800, 0x07E0, 0x07BF }, { 0x0020, 0x141F, 0x0040 } },
          { { 0, 31, 30 }, { 0, 16, 1 } } },
        { "16 bits", picture16, { { 0x1234, 5, 30 }, { 1, 0xFFE2, 31 } }, { { 20, 5, 30 }, { 1, 2, 31 } } },
        { "8 bits",
          picture8,
          { { 0xFFE0, 0x141F, 0xFFE0 }, { 0x141F, 0xFFE0, 0x07E0 } },
          { { 30, 16, 30 }, { 16, 30, 31 } } },
        { "a picture's palette of one colour keeps the others of the file before, a mask's has none behind",
          MakeBmp(8, rows8, { 0, 0xFF, 0, 0 }),
          { { 0xFFE0, 0x07E0, 0xFFE0 }, { 0x07E0, 0xFFE0, 0x07E0 } },
          { { 0, 31, 0 }, { 31, 0, 0 } } },
    };
    for (const auto& [what, bmp, pixels, alpha] : cases) {
        CImage image;
        ASSERT_TRUE(image.CreateAlpha());
        image.x = 5;
        image.blit = BlitAlpha;
        ASSERT_EQ(Load(image, bmp), ENGINE_NO_ERROR) << what;
        EXPECT_TRUE(image.x == 0 && !image.alpha && image.blit == BlitCopy) << "a fresh image";
        ASSERT_EQ(Load(image, bmp, bmp), ENGINE_NO_ERROR) << what;
        for (int y = 0; y < 2; ++y) {
            EXPECT_TRUE(std::equal(pixels[y], pixels[y] + 3, image.Row(y))) << what << ", row " << y;
            EXPECT_TRUE(std::equal(alpha[y], alpha[y] + 3, image.AlphaRow(y))) << what << ", row " << y;
        }
    }
}

TEST(BmpLoader, EachDamageHasItsCodeInAPictureAndInAMask)
{
    constexpr struct {
        size_t place;
        uint32_t value;
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
        std::string damaged = picture24;
        damaged.replace(place, 4, LittleEndian(value));
        CImage image;
        EXPECT_EQ(Load(image, damaged), picture) << why;
        EXPECT_EQ(Load(image, picture24, damaged), mask) << why;
        EXPECT_EQ(image.Row(1)[1], 0x141F) << "the colours stay loaded";
    }
    for (const std::string& whole : { picture24, picture16, picture8 })
        for (size_t size = 1; size < whole.size(); ++size) { // no bytes would be no mask
            CImage image;
            EXPECT_EQ(Load(image, whole.substr(0, size)), ENGINE_LOAD_IMAGE) << size;
            EXPECT_EQ(Load(image, whole, whole.substr(0, size)), ENGINE_LOAD_IMAGE) << size;
        }
}
