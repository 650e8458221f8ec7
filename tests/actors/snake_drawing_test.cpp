#include "snake_fixture.h"

#include "gfx/blit.h"
#include "support/allocations.h"

#include <algorithm>
#include <filesystem>

namespace
{
using SnakeDrawing = SnakeFixture;

TEST_F(SnakeDrawing, HeadShowsDirectionAndExpression)
{
    struct {
        int dir, eyeFrame, image;
    } const cases[] = { { UP, 0, 0 },   { UP, 5, 5 },   { DOWN, 1, 7 },  { DOWN, 2, 10 }, { DOWN, 3, 11 },
                        { DOWN, 4, 8 }, { DOWN, 5, 9 }, { LEFT, 2, 14 }, { RIGHT, 3, 21 } };
    for (int i = 0; i < EYE_IMAGES; ++i) {
        Snake().eyeImages[i].Fill(static_cast<uint16_t>(i));
        Snake().eyeImages[i].blit = BlitCopy;
    }
    Snake().isPaused = true; // it only draws itself
    PutSnake(240, 240, 1);
    for (const auto& c : cases) {
        Head().dir = c.dir;
        Snake().eyeFrame = c.eyeFrame;
        Frame();
        EXPECT_EQ(pondImage.Row(240)[240], c.image) << c.dir << ' ' << c.eyeFrame;
    }
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

    int plane = 1;
    for (FailPlane(plane); !Snake().SnakeLoadImage() && plane < 1000; FailPlane(plane))
        ++plane;
    FailPlane(0);
    // Each head and each mask has one of pixels and one of alpha.
    EXPECT_GT(plane, 4 * (EYE_IMAGES + BUMP_EYE_IMAGES) + ARROW_IMAGES) << "the first that was not missed";
    pond->GameEnd();
    EXPECT_FALSE(Snake().eyeImages || Snake().arrowImages) << "no picture is kept after a game";
}
}
