#include "support/test_game.h"

#include <gtest/gtest.h>

TEST(StatusBar, GivesALifeAtEachFiveThousandPoints)
{
    TestGame game(1, 1);
    CPond& pond = game.pond;
    CSnake& second = pond.snake[1];
    second.lives = 2;
    pond.introFrames = 31;
    const struct {
        int score, lives;
    } steps[] = { { 4999, 2 }, { 5000, 3 }, { 5000, 3 }, { 9995, 3 }, { 10015, 4 }, { 10020, 4 }, { 15000, 5 } };
    for (const auto& [score, lives] : steps) {
        pond.popups[0] = {};
        const bool isAwarded = lives > second.lives;
        second.score = score;
        game.Frame(0);
        EXPECT_EQ(second.lives, lives) << score;
        EXPECT_EQ(pond.popups[0].active && pond.popups[0].kind == POPUP_LIFE_UP, isAwarded) << score;
    }
}

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
