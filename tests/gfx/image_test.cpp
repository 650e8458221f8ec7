#include "gfx/image.h"

#include "gfx/error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>

namespace
{
constexpr int HUGE_SIZE = std::numeric_limits<int>::max();

/// Each pixel is its own number, from the top left; the alpha plane is empty.
void MakeNumbered(CImage& image, int width, int height)
{
    ASSERT_TRUE(image.Create(width, height) && image.CreateAlpha());
    for (int y = 0; y < height; ++y)
        std::iota(image.Row(y), image.Row(y) + width, static_cast<uint16_t>(y * width));
}
}

TEST(Image, FailsToBeMadeInImpossibleSizesAndThenDrawsNothing)
{
    constexpr int sizes[][2] = { { 5, -1 }, { -3, -3 }, { HUGE_SIZE, 0 }, { 1, HUGE_SIZE }, { 65536, 65536 } };
    CImage target;
    ASSERT_TRUE(target.Create(4, 4));
    for (const auto& [width, height] : sizes) {
        CImage image;
        ASSERT_TRUE(image.Create(2, 2)); // a failure must not leave the old size without a plane
        lastError = ENGINE_NO_ERROR;
        EXPECT_FALSE(image.Create(width, height)) << width << " x " << height;
        EXPECT_EQ(lastError, ENGINE_ALLOCATE_MEMORY);
        image.Draw(target, 0, 0);
        image.Fill(1);
    }
}

TEST(Image, ViewsAreCutToTheirParentAndShareItsPlanes)
{
    constexpr int besideIt[][2] = { { 0, 100 }, { -20, 0 }, { -HUGE_SIZE - 1, 0 } };
    CImage parent;
    CImage view;
    MakeNumbered(parent, 100, 100);
    for (const auto& [x, y] : besideIt)
        EXPECT_FALSE(view.CreateView(parent, x, y, 20, 20)) << x << ", " << y;
    ASSERT_TRUE(view.CreateView(parent, 50, -20, HUGE_SIZE, 30));
    EXPECT_TRUE(view.x == 0 && view.y == -20 && view.width == 50 && view.height == 10);
    EXPECT_TRUE(view.Row(9) == parent.Row(9) + 50 && view.AlphaRow(9) == parent.AlphaRow(9) + 50);
    ASSERT_TRUE(view.CreateView(parent, -10, 50, 200, HUGE_SIZE));
    EXPECT_TRUE(view.x == -10 && view.y == 0 && view.width == 100 && view.height == 50);
    EXPECT_TRUE(view.Row(49) == parent.Row(99) && view.AlphaRow(49) == parent.AlphaRow(99));
    ASSERT_TRUE(view.Create(5, 5)); // its own plane from now on
    view.Fill(0x1111);
    EXPECT_EQ(parent.Row(50)[0], 5000);
}

TEST(Image, DrawUsesItsArgumentsForTheCallOnlyAndNeverMoreThanThereIs)
{
    CImage target;
    CImage source;
    ASSERT_TRUE(target.Create(10, 10));
    MakeNumbered(source, 6, 6);
    target.x = 1;
    source.x = 9;
    source.Draw(target, HUGE_SIZE, 0, -HUGE_SIZE, 0);
    EXPECT_EQ(target.Row(1)[0], 0) << "the picture lies far away";
    source.Draw(target, 0, 2, 0, 1, 40, 40); // a picture smaller than expected
    EXPECT_TRUE(target.Row(1)[0] == 0 && target.Row(6)[5] == 35);
    EXPECT_TRUE(target.Row(6)[6] == 0 && target.Row(7)[0] == 0);
    source.Draw(target, KEEP, 8, 0, KEEP, 4, 2);
    EXPECT_TRUE(target.Row(8)[0] == 0 && target.Row(9)[4] == 9 && target.Row(9)[5] == 0);
    EXPECT_TRUE(source.x == 9 && source.y == 0 && source.width == 6 && source.height == 6);
}

TEST(Image, DrawsByKeyWithoutAlphaAndCopiesAlphaToTheOverlap)
{
    CImage mask;
    CImage part;
    CImage image;
    MakeNumbered(mask, 3, 9);
    std::fill_n(mask.alpha, mask.pitch / 2 * mask.height, uint8_t{ 20 });
    ASSERT_TRUE(part.CreateView(mask, 0, 0, 3, 2) && image.Create(9, 3));
    image.blit = BlitAlpha;
    image.Draw(image);
    EXPECT_EQ(image.blit, BlitColorKey);
    image.blit = BlitAlphaOpacity;
    image.Draw(image);
    EXPECT_EQ(image.blit, BlitOpacityColorKey);

    image.CopyAlpha(part);
    EXPECT_TRUE(image.AlphaRow(1)[2] == 20 && image.AlphaRow(1)[3] == 0 && image.AlphaRow(2)[0] == 0);
    CImage copy;
    image.x = 1;
    image.y = 2;
    EXPECT_TRUE(copy.Copy(image) && copy.x == 1 && copy.y == 2 && copy.blit == image.blit && copy.AlphaRow(1)[2] == 20);
}
