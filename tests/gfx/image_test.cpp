#include "gfx/blit.h"
#include "gfx/error.h"
#include "gfx/image.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

namespace
{
constexpr int HUGE_SIZE = std::numeric_limits<int>::max();

/// Each pixel is its own number, from the top left.
void MakeNumbered(CImage& image, int width, int height)
{
    ASSERT_TRUE(image.Create(width, height));
    for (int y = 0; y < height; ++y)
        std::iota(image.Row(y), image.Row(y) + width, static_cast<uint16_t>(y * width));
}

struct CreateCase {
    int width;
    int height;
    bool made;
};
constexpr CreateCase createCases[] = {
    { 0, 7, true },          { 7, 0, true },          { 5, -1, false },        { -3, -3, false },
    { HUGE_SIZE, 0, false }, { 1, HUGE_SIZE, false }, { 65536, 65536, false },
};

struct ViewCase {
    int x, y, width, height;
    bool made;
    int expectedX, expectedY, expectedWidth, expectedHeight;
    int firstPixel;
};
constexpr ViewCase viewCases[] = {
    { 10, 20, 30, 40, true, 0, 0, 30, 40, 20 * 100 + 10 },
    { -10, 5, 20, 20, true, -10, 0, 10, 20, 5 * 100 },
    { -10, -10, 200, 200, true, -10, -10, 100, 100, 0 },
    { 50, 50, HUGE_SIZE, HUGE_SIZE, true, 0, 0, 50, 50, 50 * 100 + 50 },
    { 0, 100, 1, 1, false, 0, 0, 0, 0, 0 },
    { -20, 0, 20, 20, false, 0, 0, 0, 0, 0 },
    { 10, 10, 0, 5, false, 0, 0, 0, 0, 0 },
    { -HUGE_SIZE - 1, 0, 5, 5, false, 0, 0, 0, 0, 0 },
};
}

TEST(Image, FailsToBeMadeInImpossibleSizesAndThenDrawsNothing)
{
    CImage target;
    ASSERT_TRUE(target.Create(4, 4));
    for (const CreateCase& c : createCases) {
        CImage image;
        ASSERT_TRUE(image.Create(2, 2)); // a failure must not leave the old size without a plane
        lastError = ENGINE_NO_ERROR;
        EXPECT_EQ(image.Create(c.width, c.height), c.made) << c.width << " x " << c.height;
        EXPECT_EQ(lastError, c.made ? ENGINE_NO_ERROR : ENGINE_ALLOCATE_MEMORY);
        image.Draw(target, 0, 0);
        image.Fill(1);
        EXPECT_TRUE(image.CreateAlpha());
    }
}

TEST(Image, ViewsAreCutToTheirParent)
{
    CImage parent;
    MakeNumbered(parent, 100, 100);
    for (const ViewCase& c : viewCases) {
        SCOPED_TRACE(testing::Message() << c.x << ", " << c.y << ", " << c.width << " x " << c.height);
        CImage view;
        ASSERT_EQ(view.CreateView(parent, c.x, c.y, c.width, c.height), c.made);
        EXPECT_EQ(view.x, c.expectedX);
        EXPECT_EQ(view.y, c.expectedY);
        EXPECT_EQ(view.width, c.expectedWidth);
        EXPECT_EQ(view.height, c.expectedHeight);
        if (c.made) {
            EXPECT_EQ(view.Row(view.height - 1)[0], c.firstPixel + (view.height - 1) * 100);
        }
    }
}

TEST(Image, ViewsFollowTheirParentAndLeaveItsPlanesAlone)
{
    CImage parent;
    MakeNumbered(parent, 9, 4);
    ASSERT_TRUE(parent.CreateAlpha());
    {
        CImage view;
        ASSERT_TRUE(view.CreateView(parent, 2, 1, 3, 2));
        view.Fill(0xABCD);
        view.AlphaRow(1)[2] = 31;
        ASSERT_TRUE(view.Create(5, 5)); // its own plane from now on
        view.Fill(0x1111);
    }
    EXPECT_EQ(parent.Row(1)[2], 0xABCD);
    EXPECT_EQ(parent.Row(2)[4], 0xABCD);
    EXPECT_EQ(parent.AlphaRow(2)[4], 31);
}

TEST(Image, DrawUsesItsArgumentsForTheCallOnly)
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
    EXPECT_EQ(target.Row(5)[3], 0);
    EXPECT_EQ(target.Row(6)[0], 0);
    EXPECT_TRUE(target.x == 1 && target.y == 0);
    EXPECT_TRUE(source.x == 9 && source.y == 1 && source.width == 6 && source.height == 6);
}

TEST(Image, DrawNeverReadsBeyondASmallerPictureThanExpected)
{
    CImage target;
    CImage source;
    ASSERT_TRUE(target.Create(50, 50));
    MakeNumbered(source, 3, 3);
    source.Draw(target, 0, 0, 0, 0, 40, 40);
    EXPECT_EQ(target.Row(2)[2], 8);
    EXPECT_EQ(target.Row(2)[3], 0);
    EXPECT_EQ(target.Row(3)[0], 0);
}

TEST(Image, DrawReplacesAlphaRoutinesForGoodWhereThereIsNoAlphaPlane)
{
    CImage target;
    CImage source;
    ASSERT_TRUE(target.Create(4, 4));
    ASSERT_TRUE(source.Create(4, 4));
    source.blit = BlitAlpha;
    source.Draw(target);
    EXPECT_EQ(source.blit, BlitColorKey);
    source.blit = BlitAlphaOpacity;
    source.Draw(target);
    EXPECT_EQ(source.blit, BlitOpacityColorKey);
}

TEST(Image, CopyIsIndependentAndTakesTheRoutineOnlyWithAlpha)
{
    CImage parent;
    MakeNumbered(parent, 12, 6);
    ASSERT_TRUE(parent.CreateAlpha());
    parent.AlphaRow(3)[7] = 17;
    CImage view; // its pitch is wider than the copy's
    ASSERT_TRUE(view.CreateView(parent, 3, 2, 5, 3));
    view.x = 7;
    view.opacity = 99;
    view.blit = BlitAdd;

    CImage copy;
    copy.blit = BlitSub;
    ASSERT_TRUE(copy.Copy(view));
    parent.Fill(0);
    parent.AlphaRow(3)[7] = 0;
    EXPECT_EQ(copy.x, 7);
    EXPECT_EQ(copy.pitch, 16);
    EXPECT_EQ(copy.opacity, 99u);
    EXPECT_EQ(copy.Row(0)[0], 2 * 12 + 3);
    EXPECT_EQ(copy.Row(2)[4], 4 * 12 + 7);
    EXPECT_EQ(copy.AlphaRow(1)[4], 17);
    EXPECT_EQ(copy.blit, BlitAdd);

    CImage plain;
    MakeNumbered(plain, 5, 3);
    copy.blit = BlitSub;
    ASSERT_TRUE(copy.Copy(plain));
    EXPECT_EQ(copy.blit, BlitSub);
    EXPECT_EQ(copy.AlphaRow(1)[4], 17) << "the alpha plane stays";
}

TEST(Image, CopyAlphaCoversTheOverlapOnly)
{
    CImage mask;
    CImage image;
    ASSERT_TRUE(mask.Create(3, 9) && mask.CreateAlpha());
    ASSERT_TRUE(image.Create(9, 3));
    std::fill_n(mask.alpha, mask.pitch / 2 * mask.height, uint8_t{ 20 });
    image.CopyAlpha(mask);
    EXPECT_EQ(image.AlphaRow(2)[2], 20);
    EXPECT_EQ(image.AlphaRow(2)[3], 0);
}
