#include "platform/sdl/frame_fit.h"
#include "platform/sdl/frame_scaler.h"
#include "support/instruction_sets.h"

#include <SDL.h>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <vector>

namespace
{
constexpr SDL_Point FRAME = { 257, 256 }; ///< each colour at least once

/// Where the middle of a pixel of a picture lies on the magnified frame, in 256ths of a pixel.
int Place(int i, int magnified, int shown)
{
    return std::clamp(static_cast<int>(std::lround((i + 0.5) * magnified / shown * 256 - 128)), 0,
                      magnified * 256 - 256);
}

int Between(int a, int b, int weight)
{
    return (a * (256 - weight) + b * weight + 128) / 256;
}

/// A pixel of the picture by the plainest rule: linearly out of the frame magnified by a whole factor.
uint32_t Expected(const std::vector<uint32_t>& frame, SDL_Point picture, int x, int y)
{
    const int factor = NearestWholeFactor(FRAME.x, picture.x);
    const int column = Place(x, FRAME.x * factor, picture.x);
    const int row = Place(y, FRAME.y * factor, picture.y);
    const auto channel = [&](int dx, int dy, int shift) {
        const int fromX = std::min(column / 256 + dx, FRAME.x * factor - 1) / factor;
        const int fromY = std::min(row / 256 + dy, FRAME.y * factor - 1) / factor;
        return static_cast<int>(frame[static_cast<size_t>(fromY * FRAME.x + fromX)] >> shift & 0xFF);
    };
    uint32_t pixel = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const int upper = Between(channel(0, 0, shift), channel(1, 0, shift), column % 256);
        const int lower = Between(channel(0, 1, shift), channel(1, 1, shift), column % 256);
        pixel |= static_cast<uint32_t>(Between(upper, lower, row % 256)) << shift;
    }
    return pixel;
}

/// Every colour that a pixel can have is widened as SDL does it: red and blue in even steps to 255.
TEST(FrameScaler, MagnifiesSharplyAndFromThereLinearly)
{
    constexpr SDL_Point pictures[] = {
        { 257, 256 }, { 514, 512 }, { 771, 768 },   // whole factors
        { 519, 517 }, { 637, 634 }, { 1015, 1011 }, // a little more than 2, a little less than 2.5, than 4
        { 208, 207 }, { 5, 3 },     { 1, 1 },       // smaller
    };
    constexpr size_t GAP = 3;
    constexpr uint32_t GUARD = 0x12345678;
    std::vector<uint16_t> pixels(static_cast<size_t>(FRAME.x) * FRAME.y);
    std::iota(pixels.begin(), pixels.end(), uint16_t{ 0 });
    std::shuffle(pixels.begin(), pixels.end(), std::mt19937(1));
    std::vector<uint32_t> frame(pixels.size());
    SDL_ConvertPixels(FRAME.x, FRAME.y, SDL_PIXELFORMAT_RGB565, pixels.data(), FRAME.x * 2, SDL_PIXELFORMAT_ARGB8888,
                      frame.data(), FRAME.x * 4);
    for (const SDL_Point picture : pictures) {
        const size_t pitch = static_cast<size_t>(picture.x) + GAP;
        std::vector<uint32_t> expected(pitch * static_cast<size_t>(picture.y), GUARD);
        for (int y = 0; y < picture.y; ++y)
            for (int x = 0; x < picture.x; ++x)
                expected[static_cast<size_t>(y) * pitch + static_cast<size_t>(x)] = Expected(frame, picture, x, y);
        OnEveryInstructionSet([&] {
            std::vector<uint32_t> shown(expected.size(), GUARD);
            CFrameScaler scaler;
            scaler.SetSizes(FRAME, picture);
            uint8_t* const target = reinterpret_cast<uint8_t*>(shown.data());
            const size_t rows = static_cast<size_t>(picture.y);
            scaler.ScaleRows(pixels.data(), { 0, rows, target, static_cast<ptrdiff_t>(pitch * 4) });
            EXPECT_EQ(shown, expected) << picture.x;
        });
    }
}
}
