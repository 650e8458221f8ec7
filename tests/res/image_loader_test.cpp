#include "gfx/error.h"
#include "gfx/image.h"
#include "res/image_loader.h"
#include "res/picture_table.h"
#include "support/file_bytes.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <algorithm>
#include <random>
#include <vector>

// The colours of JPEG files are those of the recorded games' pictures.

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

constexpr char SIDE = 24; ///< of JPEG pictures, pixels

EngineError Load(CImage& image, const std::string& file, const std::string& mask = {})
{
    const auto* const bytes = reinterpret_cast<const uint8_t*>(file.data());
    const auto* const maskBytes = mask.empty() ? nullptr : reinterpret_cast<const uint8_t*>(mask.data());
    const auto size = static_cast<uint32_t>(file.size());
    lastError = ENGINE_NO_ERROR;
    const bool loaded = file.starts_with("\xFF")
                            ? LoadJpegImage(image, bytes, size)
                            : LoadBmpImage(image, bytes, size, maskBytes, static_cast<uint32_t>(mask.size()));
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

TEST(JpegLoader, ReadsGreyLevelsAndRefusesInks)
{
    CImage image;
    for (const int level : { 0, 100, 129, 255 }) {
        const std::string grey = EncodeJpeg(Bytes(SIDE * SIDE, static_cast<uint8_t>(level)), SIDE, SIDE, TJPF_GRAY);
        ASSERT_EQ(Load(image, grey), ENGINE_NO_ERROR);
        EXPECT_EQ(image.Row(7)[7], level / 8 * 2048 + level / 4 * 32 + level / 8) << level;
    }
    EXPECT_EQ(Load(image, EncodeJpeg(Bytes(SIDE * SIDE * 4, 90), SIDE, SIDE, TJPF_CMYK)), ENGINE_LOAD_IMAGE);
}

TEST(JpegLoader, EachDamageHasItsCode)
{
    std::mt19937 random(5);
    Bytes noise(SIDE * SIDE * 3);
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<uint8_t>(random()); });
    const std::string whole = EncodeJpeg(noise, SIDE, SIDE, TJPF_BGR);
    for (size_t size = 0; size < whole.size(); ++size) {
        CImage image;
        EXPECT_EQ(Load(image, whole.substr(0, size)), ENGINE_LOAD_IMAGE) << size;
    }
    const size_t place = whole.find(std::string{ 0, SIDE, 0, SIDE }); // as the header has its size
    std::string damaged = whole;
    damaged[place] = damaged[place + 2] = 0x70;
    CImage image;
    EXPECT_EQ(Load(image, damaged), ENGINE_ALLOCATE_MEMORY) << "a picture of gigabytes";
    const size_t frame = whole.find("\xFF\xC0");
    const std::string start = whole.substr(0, whole.find("\xFF\xDA") + 14); // arithmetic codes may be left out
    EXPECT_EQ(Load(image, std::string(start).replace(frame + 1, 1, "\xC9") + "\xFF\xD9"), ENGINE_LOAD_IMAGE);
    EXPECT_EQ(Load(image, std::string(whole).insert(frame, "\xFF")), ENGINE_NO_ERROR) << "filled up";
}

TEST(PictureTable, HoldsTwoMillionPixels)
{
    constexpr int LARGE = 724; // four of them are just below
    TempFolder folder;
    for (const char* name : { "1.jpg", "2.jpg", "3.jpg", "4.jpg", "5.jpg" })
        folder.Write(std::string("Dat/Image/") + name, EncodeJpeg(Bytes(LARGE * LARGE), LARGE, LARGE, TJPF_GRAY));
    CImage images[5];
    const std::span<CImage> sets[] = { images };
    PictureRow row{ .set = 0, .image = 0, .file = "%d.jpg", .size = {}, .blit = BlitCopy, .count = 4 };
    EXPECT_TRUE(LoadPictures(sets, { &row, 1 }));
    row.count = 5;
    EXPECT_TRUE(!LoadPictures(sets, { &row, 1 }) && lastError == ENGINE_ALLOCATE_MEMORY);
}
