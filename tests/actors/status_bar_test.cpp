#include "support/test_game.h"

namespace
{
using StatusBar = PondTest;

TEST_F(StatusBar, AddsUpTwoScoresAndRaisesTheTargetByMoreEachLevel)
{
    StartGame(1);
    snake.score = 250;
    pond.snake[1].score = 249;
    Play(1);
    EXPECT_EQ(pond.statusBar.level, 1);
    pond.snake[1].score = 250;
    Play(1);
    EXPECT_FALSE(snake.isActive || pond.snake[1].isActive) << "both snakes coil up";
    for (const int target : { 1500, 3000, 5000, 7500, 10500 }) {
        EXPECT_EQ(pond.statusBar.target, target);
        pond.statusBar.StatusBarLevelCleared();
    }
}
}
