#include "game/pond_fixture.h"

#include <algorithm>

namespace
{
using Pond = PondTest;

TEST_F(Pond, NewGameForgetsTheLastOneButNotTheMoon)
{
    pond.PlaceBerry(RED, 3);
    pond.FireLaser(0, 0, HEADING_UP);
    pond.ShowPopup(0, 0, POPUP_5);
    pond.shockwave.maxRadius = 9;
    pond.isDay = false;
    pond.transition = pond.dayTimer = pond.fadeOut = 7;
    pond.gameOver = true;
    scenery.moonY = blinkCounter = 5;
    ASSERT_TRUE(pond.NewGame(1, testKeys[0], testKeys[1]));
    EXPECT_EQ(std::ranges::count(pond.cells, true, &Cell::occupied), 0);
    EXPECT_FALSE(pond.lasers[0].active || pond.popups[0].active || pond.gameOver);
    EXPECT_EQ(pond.shockwave.maxRadius + pond.transition + pond.dayTimer + pond.fadeOut + pond.introFrames, 0);
    EXPECT_TRUE(pond.isDay);
    EXPECT_EQ(pond.highlight[0], -1);
    EXPECT_EQ(scenery.moonY, 5);
    EXPECT_EQ(blinkCounter, 5);
    EXPECT_EQ(pond.snake[1].segments[0].x, 320);
    EXPECT_EQ(pond.snake[1].keyDown, 'S');
}

TEST_F(Pond, NothingMovesDuringTheFadeIn)
{
    ASSERT_TRUE(pond.NewGame(0, testKeys[0], testKeys[1]));
    pond.dayBackground.Fill(0xFFFF);
    pond.ShowPopup(0, 0, POPUP_5);
    for (int frame = 0; frame < 31; ++frame) {
        Play(1);
        EXPECT_EQ(Pixel(backBuffer, POND_LEFT, 100) & 0x1F, frame) << "one of 32 steps brighter a frame";
    }
    EXPECT_EQ(pond.popups[0].opacity, 255);
    EXPECT_EQ(pond.snake[0].segments[0].y, POND_SIZE);
    EXPECT_EQ(pond.dayTimer, 31);
    Play(1);
    EXPECT_EQ(pond.popups[0].opacity, 245);
    EXPECT_EQ(pond.snake[0].segments[0].y, POND_SIZE - 2);
}

TEST_F(Pond, PauseShowsTheFrozenFrameAtHalfLight)
{
    screenCopy.Fill(0xFFFF);
    pond.snake[0].isPaused = true;
    pond.ShowPopup(0, 0, POPUP_5);
    DisturbWater(100, 100, 8, 170);
    const uint32_t random = RandomState();
    Play(1);
    EXPECT_EQ(Pixel(backBuffer, 600, 400) & 0x1F, 15);
    EXPECT_EQ(pond.popups[0].opacity, 255);
    EXPECT_EQ(pond.dayTimer, 0);
    EXPECT_EQ(water.current[100 * POND_SIZE + 92], 0) << "outside the disc the water has not moved";
    EXPECT_EQ(RandomState(), random);
}

TEST_F(Pond, GameIsLostWhenEverySnakeInPlayIsOut)
{
    StartGame(1);
    pond.snake[0].isOut = true;
    Play(1);
    EXPECT_FALSE(pond.statusBar.gameOverPanel.isVisible);
    pond.snake[1].isOut = true;
    Play(1);
    EXPECT_TRUE(pond.statusBar.gameOverPanel.isVisible);
    StartGame(0);
    pond.snake[0].isOut = true;
    pond.fadeOut = 50;
    Play(1);
    EXPECT_FALSE(pond.statusBar.gameOverPanel.isVisible) << "the end is under way already";
}
}
