#include "gfx/error.h"
#include "res/image_loader.h"

#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <vector>

namespace
{
using Bytes = std::vector<uint8_t>;

Bytes MakeJpeg(int width, int height, int pixelFormat, int subsampling, const Bytes& pixels, int flags = 0)
{
    tjhandle encoder = tjInitCompress();
    unsigned char* file = nullptr;
    unsigned long size = 0;
    EXPECT_EQ(tjCompress2(encoder, pixels.data(), width, 0, height, pixelFormat, &file, &size, subsampling, 100, flags),
              0);
    Bytes bytes(file, file + size);
    tjFree(file);
    tjDestroy(encoder);
    return bytes;
}

/// 10 x 6: red above, blue below; the rows of blue, green, red are not a multiple of 4 long.
Bytes MakeTwoColours(int flags = 0)
{
    Bytes pixels;
    for (int i = 0; i < 10 * 6; ++i)
        pixels.insert(pixels.end(), { uint8_t(i < 30 ? 0 : 255), uint8_t(0), uint8_t(i < 30 ? 255 : 0) });
    return MakeJpeg(10, 6, TJPF_BGR, TJSAMP_444, pixels, flags);
}

Bytes MakeNoise(int width, int height)
{
    std::mt19937 random(5);
    Bytes pixels(static_cast<size_t>(width * height * 3));
    for (uint8_t& value : pixels)
        value = static_cast<uint8_t>(random());
    return MakeJpeg(width, height, TJPF_BGR, TJSAMP_420, pixels);
}

bool Load(CImage& image, const Bytes& jpeg)
{
    lastError = ENGINE_NO_ERROR;
    return LoadJpegImage(image, jpeg.data(), static_cast<uint32_t>(jpeg.size()));
}

/// Without the levels that the detour through JPEG may change.
int Roughly(uint16_t pixel)
{
    return pixel & Rgb565(0xE0, 0xE0, 0xE0);
}
}

TEST(JpegLoader, ReadsColourTopRowFirst)
{
    for (const int flags : { 0, TJFLAG_PROGRESSIVE }) {
        CImage image;
        ASSERT_TRUE(Load(image, MakeTwoColours(flags)));
        ASSERT_EQ(image.width, 10);
        ASSERT_EQ(image.height, 6);
        for (int column = 0; column < 10; ++column) {
            EXPECT_EQ(Roughly(image.Row(0)[column]), Rgb565(0xE0, 0, 0));
            EXPECT_EQ(Roughly(image.Row(5)[column]), Rgb565(0, 0, 0xE0));
        }
    }
}

TEST(JpegLoader, ReadsGreyLevelsAndRefusesInks)
{
    CImage image;
    for (const int level : { 0, 100, 129, 255 }) {
        ASSERT_TRUE(Load(image, MakeJpeg(8, 8, TJPF_GRAY, TJSAMP_GRAY, Bytes(64, static_cast<uint8_t>(level)))));
        EXPECT_EQ(image.Row(7)[7], level / 8 * 2048 + level / 4 * 32 + level / 8) << level;
    }
    EXPECT_FALSE(Load(image, MakeJpeg(8, 8, TJPF_CMYK, TJSAMP_444, Bytes(256, 90))));
    EXPECT_EQ(lastError, ENGINE_LOAD_IMAGE);
}

TEST(JpegLoader, TruncatedFilesFail)
{
    const Bytes baseline = MakeNoise(33, 17);
    for (const Bytes& whole : { baseline, MakeTwoColours(TJFLAG_PROGRESSIVE) })
        for (size_t size = 0; size < whole.size(); ++size) {
            CImage image;
            EXPECT_FALSE(Load(image, Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size)))) << size;
            EXPECT_EQ(lastError, ENGINE_LOAD_IMAGE) << size;
            EXPECT_EQ(image.pixels, nullptr);
        }
}

TEST(JpegLoader, DamagedFilesLoadOrFailByName)
{
    const Bytes whole = MakeNoise(33, 17);
    std::mt19937 random(13);
    for (int round = 0; round < 2000; ++round) {
        Bytes damaged = whole;
        for (int i = 0; i < 3; ++i)
            damaged[random() % damaged.size()] = static_cast<uint8_t>(random());
        CImage image;
        const bool loaded = Load(image, damaged);
        ASSERT_EQ(loaded, lastError == ENGINE_NO_ERROR);
        ASSERT_EQ(loaded, image.pixels != nullptr);
    }
}
