#include "gfx/error.h"
#include "res/image_loader.h"
#include "res/picture_table.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <algorithm>
#include <random>
#include <vector>

// Colours are those of the recorded games' pictures.

namespace
{
using Bytes = std::vector<uint8_t>;

constexpr char SIDE = 24; ///< pixels

EngineError Load(CImage& image, const std::string& jpeg)
{
    lastError = ENGINE_NO_ERROR;
    const bool loaded =
        LoadJpegImage(image, reinterpret_cast<const uint8_t*>(jpeg.data()), static_cast<uint32_t>(jpeg.size()));
    EXPECT_TRUE(loaded == (lastError == ENGINE_NO_ERROR) && loaded == (image.pixels != nullptr));
    return static_cast<EngineError>(lastError);
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
    CImage none;
    EXPECT_EQ(Load(none, EncodeJpeg(Bytes(SIDE * SIDE * 4, 90), SIDE, SIDE, TJPF_CMYK)), ENGINE_LOAD_IMAGE);
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
