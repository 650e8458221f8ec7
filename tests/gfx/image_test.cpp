#include "gfx/blit.h"
#include "gfx/error.h"
#include "gfx/image.h"

#include <gtest/gtest.h>

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
    constexpr struct {
        int width, height;
        EngineError error;
    } sizes[] = {
        { 0, 7, ENGINE_NO_ERROR },
        { 7, 0, ENGINE_NO_ERROR },
        { 5, -1, ENGINE_ALLOCATE_MEMORY },
        { -3, -3, ENGINE_ALLOCATE_MEMORY },
        { HUGE_SIZE, 0, ENGINE_ALLOCATE_MEMORY },
        { 1, HUGE_SIZE, ENGINE_ALLOCATE_MEMORY },
        { 65536, 65536, ENGINE_ALLOCATE_MEMORY },
    };
    CImage target;
    ASSERT_TRUE(target.Create(4, 4));
    for (const auto& [width, height, error] : sizes) {
        CImage image;
        ASSERT_TRUE(image.Create(2, 2)); // a failure must not leave the old size without a plane
        lastError = ENGINE_NO_ERROR;
        EXPECT_EQ(image.Create(width, height), error == ENGINE_NO_ERROR) << width << " x " << height;
        EXPECT_EQ(lastError, error);
        image.Draw(target, 0, 0);
        image.Fill(1);
        EXPECT_TRUE(image.CreateAlpha());
    }
}

TEST(Image, ViewsAreCutToTheirParentAndShareItsPlanes)
{
    constexpr struct {
        int x, y, width, height;
        int anchorX, anchorY, seenWidth, seenHeight; ///< width 0: there is nothing to see
    } views[] = {
        { 10, 20, 30, 40, 0, 0, 30, 40 },
        { -10, 5, 20, 20, -10, 0, 10, 20 },
        { -10, -10, 200, 200, -10, -10, 100, 100 },
        { 50, 50, HUGE_SIZE, HUGE_SIZE, 0, 0, 50, 50 },
        { 0, 100, 1, 1, 0, 0, 0, 0 },
        { -20, 0, 20, 20, 0, 0, 0, 0 },
        { 10, 10, 0, 5, 0, 0, 0, 0 },
        { -HUGE_SIZE - 1, 0, 5, 5, 0, 0, 0, 0 },
    };
    CImage parent;
    MakeNumbered(parent, 100, 100);
    for (const auto& [x, y, width, height, anchorX, anchorY, seenWidth, seenHeight] : views) {
        SCOPED_TRACE(testing::Message() << x << ", " << y << ", " << width << " x " << height);
        CImage view;
        ASSERT_EQ(view.CreateView(parent, x, y, width, height), seenWidth > 0);
        EXPECT_TRUE(view.x == anchorX && view.y == anchorY);
        EXPECT_TRUE(view.width == seenWidth && view.height == seenHeight);
        if (seenWidth == 0)
            continue;
        const int lastRow = y - anchorY + seenHeight - 1;
        EXPECT_EQ(view.Row(seenHeight - 1)[0], lastRow * 100 + x - anchorX);
        view.AlphaRow(seenHeight - 1)[0] = 31;
        EXPECT_EQ(parent.AlphaRow(lastRow)[x - anchorX], 31);
        ASSERT_TRUE(view.Create(5, 5)); // its own plane from now on
        view.Fill(0x1111);
        EXPECT_EQ(parent.Row(lastRow)[x - anchorX], lastRow * 100 + x - anchorX);
    }
}

TEST(Image, DrawUsesItsArgumentsForTheCallOnlyAndNeverMoreThanThereIs)
{
    CImage target;
    CImage source;
    ASSERT_TRUE(target.Create(10, 10));
    MakeNumbered(source, 6, 6);
    target.x = 1;
    source.x = 9;
    source.y = 1;
    source.Draw(target, KEEP, 5, 2, KEEP, 4, 2);
    // Left 1 - 2, top 5 - 1: columns 1 to 3 and rows 0 and 1 of the source remain.
    EXPECT_EQ(target.Row(4)[0], 1);
    EXPECT_EQ(target.Row(5)[2], 6 + 3);
    EXPECT_TRUE(target.Row(5)[3] == 0 && target.Row(6)[0] == 0);
    EXPECT_TRUE(target.x == 1 && target.y == 0);
    EXPECT_TRUE(source.x == 9 && source.y == 1 && source.width == 6 && source.height == 6);

    source.Draw(target, 0, 0, 0, 0, 40, 40); // a picture smaller than expected
    EXPECT_EQ(target.Row(5)[5], 35);
    EXPECT_TRUE(target.Row(5)[6] == 0 && target.Row(6)[0] == 0);
}

TEST(Image, DrawReplacesAlphaRoutinesForGoodWhereThereIsNoAlphaPlane)
{
    constexpr BlitRoutine routines[][2] = { { BlitAlpha, BlitColorKey }, { BlitAlphaOpacity, BlitOpacityColorKey } };
    for (const auto& [wanted, used] : routines) {
        CImage image;
        ASSERT_TRUE(image.Create(4, 4));
        image.blit = wanted;
        image.Draw(image);
        EXPECT_EQ(image.blit, used);
    }
}

TEST(Image, CopyIsIndependentAndTakesTheRoutineOnlyWithAlpha)
{
    CImage parent;
    MakeNumbered(parent, 12, 6);
    parent.AlphaRow(3)[7] = 17;
    CImage view; // its pitch is wider than the copy's
    ASSERT_TRUE(view.CreateView(parent, 3, 2, 5, 3));
    view.x = 7;
    view.y = 8;
    view.opacity = 99;
    view.blit = BlitAdd;
    CImage copy;
    ASSERT_TRUE(copy.Copy(view));
    parent.Fill(0);
    parent.AlphaRow(3)[7] = 0;
    EXPECT_TRUE(copy.x == 7 && copy.y == 8 && copy.pitch == 16 && copy.opacity == 99);
    EXPECT_TRUE(copy.Row(0)[0] == 2 * 12 + 3 && copy.Row(2)[4] == 4 * 12 + 7);
    EXPECT_EQ(copy.AlphaRow(1)[4], 17);
    EXPECT_TRUE(copy.blit == BlitAdd && view.blit == BlitAdd);

    CImage plain;
    ASSERT_TRUE(plain.Create(5, 3));
    copy.blit = BlitSub;
    ASSERT_TRUE(copy.Copy(plain));
    EXPECT_EQ(copy.blit, BlitSub);
    EXPECT_EQ(copy.AlphaRow(1)[4], 17) << "the alpha plane stays";
}

TEST(Image, CopyAlphaCoversTheOverlapOnly)
{
    CImage mask;
    CImage image;
    MakeNumbered(mask, 3, 9);
    ASSERT_TRUE(image.Create(9, 3));
    std::fill_n(mask.alpha, mask.pitch / 2 * mask.height, uint8_t{ 20 });
    image.CopyAlpha(mask);
    EXPECT_TRUE(image.AlphaRow(2)[2] == 20 && image.AlphaRow(2)[3] == 0);
}
