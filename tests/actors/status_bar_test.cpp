#include "support/test_game.h"

#include <gtest/gtest.h>

TEST(StatusBar, AddsUpTwoScoresAndRaisesTheTargetByMoreEachLevel)
{
    TestGame game(1, 1);
    CPond& pond = game.pond;
    pond.introFrames = 31;
    pond.snake[0].score = 250;
    pond.snake[1].score = 249;
    game.Frame(0);
    EXPECT_EQ(pond.statusBar.level, 1);
    pond.snake[1].score = 250;
    game.Frame(0);
    EXPECT_FALSE(pond.snake[0].isActive || pond.snake[1].isActive) << "both snakes coil up";
    for (const int target : { 1500, 3000, 5000, 7500, 10500 }) {
        EXPECT_EQ(pond.statusBar.target, target);
        pond.statusBar.StatusBarLevelCleared();
    }
}
