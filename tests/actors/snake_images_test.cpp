#include "support/allocations.h"
#include "support/test_game.h"

#include <filesystem>

namespace
{
using SnakeImages = PondTest;

TEST_F(SnakeImages, AreAllThereOrTheSnakeStaysAsItWas)
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
}
}
