#include "support/test_game.h"

#include "app/frame_images.h"

#include "gfx/blit.h"
#include "support/allocations.h"

#include <algorithm>
#include <filesystem>

namespace
{
using SnakeDrawing = PondTest;

TEST_F(SnakeDrawing, HeadShowsDirectionAndExpression)
{
    struct {
        int dir, eyeFrame, image;
    } const cases[] = { { VK_UP, 0, 0 },    { VK_UP, 5, 5 },    { VK_DOWN, 1, 7 },
                        { VK_DOWN, 2, 10 }, { VK_DOWN, 3, 11 }, { VK_DOWN, 4, 8 },
                        { VK_DOWN, 5, 9 },  { VK_LEFT, 2, 14 }, { VK_RIGHT, 3, 21 } };
    for (int i = 0; i < EYE_IMAGES; ++i) {
        snake.eyeImages[i].Fill(static_cast<uint16_t>(i));
        snake.eyeImages[i].blit = BlitCopy;
    }
    snake.isPaused = true; // it only draws itself
    PutSnake(240, 240, 1);
    for (const auto& c : cases) {
        snake.segments[0].dir = c.dir;
        snake.eyeFrame = c.eyeFrame;
        SnakeFrame();
        EXPECT_EQ(pondImage.Row(240)[240], c.image) << c.dir << ' ' << c.eyeFrame;
    }
}

TEST_F(SnakeDrawing, AMissingPictureLeavesTheSnakeAsItWas)
{
    const char* file = "Dat/Image/bumpeye3_.bmp";
    std::filesystem::rename(file, "kept");
    snake.score = 7;
    EXPECT_FALSE(snake.SnakeInit(100, &pond, 2, 1, 2, 3, 4));
    std::filesystem::rename("kept", file);
    EXPECT_EQ(snake.player, 1);
    EXPECT_EQ(snake.score, 7);
    EXPECT_EQ(snake.keyUp, VK_UP);

    int plane = 1;
    for (FailPlane(plane); !snake.SnakeLoadImage() && plane < 1000; FailPlane(plane))
        ++plane;
    FailPlane(0);
    // Each head and each mask has one of pixels and one of alpha.
    EXPECT_GT(plane, 4 * (EYE_IMAGES + BUMP_EYE_IMAGES) + ARROW_IMAGES) << "the first that was not missed";
    pond.GameEnd();
    EXPECT_FALSE(snake.eyeImages || snake.arrowImages) << "no picture is kept after a game";
}
}
