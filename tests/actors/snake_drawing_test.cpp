#include "snake_fixture.h"

#include "gfx/blit.h"
#include "support/allocations.h"

#include <algorithm>
#include <filesystem>

namespace
{
constexpr uint16_t BODY = 0x0001;
constexpr uint16_t SHADOW = 0x0002;
constexpr uint16_t ARROW = 0x0003;
constexpr uint16_t BUMP = 0x0100; ///< + image
constexpr uint16_t EYE = 0x0200;  ///< + image

int CountPixels(const CImage& image, uint16_t colour)
{
    int count = 0;
    for (int y = 0; y < image.height; ++y)
        count += static_cast<int>(std::count(image.Row(y), image.Row(y) + image.width, colour));
    return count;
}

/// Each picture has a colour of its own and replaces what is below.
class SnakeDrawing : public SnakeFixture
{
protected:
    void SetUp() override
    {
        SnakeFixture::SetUp();
        Colour(Snake().bodyImage, BODY);
        Colour(Snake().shadowImage, SHADOW);
        for (int i = 0; i < EYE_IMAGES; ++i)
            Colour(Snake().eyeImages[i], static_cast<uint16_t>(EYE + i));
        for (int i = 0; i < BUMP_EYE_IMAGES; ++i)
            Colour(Snake().bumpEyeImages[i], static_cast<uint16_t>(BUMP + i));
        for (int i = 0; i < ARROW_IMAGES; ++i)
            Colour(Snake().arrowImages[i], ARROW);
        Snake().isPaused = true; // it only draws itself
        PutSnake(240, 240, 1);
    }
    static void Colour(CImage& image, uint16_t colour)
    {
        image.Fill(colour);
        image.blit = BlitCopy;
    }
    int Drawn(uint16_t colour)
    {
        pondImage.Fill(0);
        Frame();
        return CountPixels(pondImage, colour);
    }
};

TEST_F(SnakeDrawing, HeadAndBodyWrapAfterTheEntry)
{
    PutSnake(472, 472, 1);
    Snake().frameCount = 39;
    EXPECT_EQ(Drawn(EYE), 8 * 8);
    Snake().frameCount = 40;
    EXPECT_EQ(Drawn(EYE), 16 * 16) << "in all four corners";

    // With the head's face gone the body shows: without a copy in the diagonal corner.
    Snake().isDying = true;
    Snake().deathFrames = 20;
    EXPECT_EQ(Drawn(BODY), 3 * 8 * 8);
    Snake().frameCount = 39;
    EXPECT_EQ(Drawn(BODY), 8 * 8);
}

TEST_F(SnakeDrawing, ShadowWrapsFiveFramesLater)
{
    PutSnake(464, 464, 1);
    for (const int frame : { 44, 45 }) {
        Snake().frameCount = frame;
        pondImage.Fill(0);
        Snake().SnakeDrawShadow(pondImage);
        EXPECT_EQ(CountPixels(pondImage, SHADOW), frame < 45 ? 8 * 8 : 16 * 16);
    }
}

TEST_F(SnakeDrawing, StackedSegmentsAreDrawnOnce)
{
    Snake().bodyImage.blit = BlitAdd;
    Snake().length = 5;
    std::fill(Snake().segments, Snake().segments + 5, Segment{ .x = 240, .y = 240, .dir = 0 });
    EXPECT_EQ(Drawn(BODY), 16 * 16);
}

TEST_F(SnakeDrawing, HeadShowsDirectionAndExpression)
{
    struct {
        int dir, eyeFrame, image;
    } const cases[] = { { UP, 0, 0 },   { UP, 5, 5 },   { DOWN, 1, 7 },  { DOWN, 2, 10 }, { DOWN, 3, 11 },
                        { DOWN, 4, 8 }, { DOWN, 5, 9 }, { LEFT, 2, 14 }, { RIGHT, 3, 21 } };
    for (const auto& c : cases) {
        Head().dir = c.dir;
        Snake().eyeFrame = c.eyeFrame;
        EXPECT_EQ(Drawn(static_cast<uint16_t>(EYE + c.image)), 256) << c.dir << ' ' << c.eyeFrame;
    }
}

TEST_F(SnakeDrawing, BumpedHeadThenVanishesFromTheFront)
{
    PutSnake(240, 240, 5);
    Head().dir = LEFT;
    Snake().isPaused = false;
    Snake().isDying = true;
    EXPECT_EQ(Drawn(BUMP + 2), 24 * 24);
    Snake().deathFrames = 19 + 2 * 2;
    EXPECT_EQ(Drawn(BODY), 3 * 256) << "two segments gone";
    EXPECT_EQ(pondImage.Row(240)[240], 0);
}

TEST_F(SnakeDrawing, ArrowsBlinkAroundAWaitingSnake)
{
    Snake().isWaiting = true;
    Snake().SnakeDrawArrows(backBuffer);
    EXPECT_EQ(backBuffer.Row(224)[400], ARROW) << "above the head, right of the strip";

    Snake().arrowBlink = 0;
    int shown = 0;
    for (int i = 0; i < 50; ++i) {
        backBuffer.Fill(0);
        Snake().SnakeDrawArrows(backBuffer);
        shown += CountPixels(backBuffer, ARROW) / (4 * 256);
    }
    EXPECT_EQ(shown, 40);
}

TEST_F(SnakeDrawing, AMissingPictureLeavesTheSnakeAsItWas)
{
    const char* file = "Dat/Image/bumpeye3_.bmp";
    std::filesystem::rename(file, "kept");
    Snake().score = 7;
    EXPECT_FALSE(Snake().SnakeInit(100, pond.get(), 2, 1, 2, 3, 4));
    std::filesystem::rename("kept", file);
    EXPECT_EQ(Snake().player, 1);
    EXPECT_EQ(Snake().score, 7);
    EXPECT_EQ(Snake().keyUp, UP);
}

TEST_F(SnakeDrawing, NoPictureIsTakenWithoutMemoryForItsPlanes)
{
    int plane = 1;
    for (FailPlane(plane); !Snake().SnakeLoadImage() && plane < 1000; FailPlane(plane))
        ++plane;
    FailPlane(0);
    // Each head and each mask has one of pixels and one of alpha.
    EXPECT_GT(plane, 4 * (EYE_IMAGES + BUMP_EYE_IMAGES) + ARROW_IMAGES) << "the first that was not missed";
}
}
