#include "gfx/error.h"
#include "res/image_loader.h"

#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <algorithm>
#include <random>
#include <vector>

// Colours are those of the recorded games' pictures.

namespace
{
using Bytes = std::vector<uint8_t>;

constexpr int SIDE = 24; ///< pixels

/// A picture of that many pixels in both directions.
Bytes MakeJpeg(int pixelFormat, const Bytes& pixels)
{
    tjhandle encoder = tjInitCompress();
    unsigned char* file = nullptr;
    unsigned long size = 0;
    const int sampling = pixelFormat == TJPF_GRAY ? TJSAMP_GRAY : TJSAMP_420;
    tjCompress2(encoder, pixels.data(), SIDE, 0, SIDE, pixelFormat, &file, &size, sampling, 100, 0);
    Bytes bytes(file, file + size);
    tjFree(file);
    tjDestroy(encoder);
    return bytes;
}

EngineError Load(CImage& image, const Bytes& jpeg)
{
    lastError = ENGINE_NO_ERROR;
    const bool loaded = LoadJpegImage(image, jpeg.data(), static_cast<uint32_t>(jpeg.size()));
    EXPECT_TRUE(loaded == (lastError == ENGINE_NO_ERROR) && loaded == (image.pixels != nullptr));
    return static_cast<EngineError>(lastError);
}
}

TEST(JpegLoader, ReadsGreyLevelsAndRefusesInks)
{
    CImage image;
    for (const int level : { 0, 100, 129, 255 }) {
        const Bytes grey = MakeJpeg(TJPF_GRAY, Bytes(SIDE * SIDE, static_cast<uint8_t>(level)));
        ASSERT_EQ(Load(image, grey), ENGINE_NO_ERROR);
        EXPECT_EQ(image.Row(7)[7], level / 8 * 2048 + level / 4 * 32 + level / 8) << level;
    }
    CImage none;
    EXPECT_EQ(Load(none, MakeJpeg(TJPF_CMYK, Bytes(SIDE * SIDE * 4, 90))), ENGINE_LOAD_IMAGE);
}

TEST(JpegLoader, EachDamageHasItsCode)
{
    std::mt19937 random(5);
    Bytes noise(SIDE * SIDE * 3);
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<uint8_t>(random()); });
    const Bytes whole = MakeJpeg(TJPF_BGR, noise);
    for (size_t size = 0; size < whole.size(); ++size) {
        CImage image;
        const Bytes cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size));
        EXPECT_EQ(Load(image, cut), ENGINE_LOAD_IMAGE) << size;
    }
    constexpr uint8_t sizes[] = { 0, SIDE, 0, SIDE }; // as the header has them
    const auto place = static_cast<size_t>(std::search(whole.begin(), whole.end(), std::begin(sizes), std::end(sizes)) -
                                           whole.begin());
    Bytes damaged = whole;
    damaged[place] = damaged[place + 2] = 0x70;
    CImage image;
    EXPECT_EQ(Load(image, damaged), ENGINE_ALLOCATE_MEMORY) << "a picture of gigabytes";
}
