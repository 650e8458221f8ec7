#include "actors/status_bar_fixture.h"
#include "doubles/directx.h"
#include "gfx/error.h"
#include "sound/sound.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace
{
constexpr int SECOND_PLAYER_Y = 150; ///< the second player's figures stand below
}

TEST(StatusBar, GivesALifeAtEachFiveThousandPoints)
{
    BarGame run(1);
    directX = {};
    SoundInit(nullptr);
    SoundSetMute(0);
    const WAVEFORMATEX format = { WAVE_FORMAT_PCM, 1, 22050, 44100, 2, 16, 0 };
    ASSERT_TRUE(SoundCreate(SOUND_LIFE_UP, &format, 100));
    const struct {
        int score, lives;
    } steps[] = { { 4999, 2 }, { 5000, 3 }, { 5000, 3 }, { 9995, 3 }, { 10015, 4 }, { 10020, 4 }, { 15000, 5 } };
    CSnake& second = run.pond.snake[1];
    Popup& popup = run.pond.popups[0];
    int x = 0, y = 0;
    second.SnakeGetHead(x, y);
    for (const auto& [score, lives] : steps) {
        second.score = score;
        popup = {};
        const bool isAwarded = lives > second.lives;
        run.Process();
        EXPECT_EQ(second.lives, lives) << score;
        EXPECT_EQ(directX.buffers[0]->plays, lives - 2) << score;
        EXPECT_EQ(popup.active, isAwarded);
        EXPECT_TRUE(!isAwarded || (popup.kind == POPUP_LIFE_UP && popup.x == x && popup.y == y)) << "at the head";
    }
    EXPECT_EQ(run.snake.lives, 2);
    run.bar.StatusBarReset(&run.pond);
    second.score = 5005;
    run.Process();
    EXPECT_EQ(second.lives, 6) << "a new game counts from 0";
    SoundRelease();
}

TEST(StatusBar, ShowsBothPlayersFigures)
{
    BarGame run(1);
    CSnake& second = run.pond.snake[1];
    run.bar.lifeMark[0] = run.bar.lifeMark[1] = 999999;
    run.snake.lives = 1;
    run.snake.score = 123456;
    second.lives = 9;
    second.score = 70;
    run.snake.lastColour = PURPLE;
    run.snake.streak = 3;
    second.lastColour = RED;
    second.streak = 1;
    run.Process();
    EXPECT_TRUE(run.Shows(48, 81, WHITE, 5) && run.Shows(48, 122, WHITE, 123456));
    EXPECT_TRUE(run.Shows(48, 201, WHITE, 5) && run.Shows(48, 242, WHITE, 70));
    EXPECT_EQ(run.Find(HEART, 0, SECOND_PLAYER_Y), (Area{ 48, 63, 14, 12 }));
    EXPECT_EQ(run.Find(HEART, SECOND_PLAYER_Y), (Area{ 48, 183, 4 * 15 + 14, 12 })) << "no more than five hearts fit";
    EXPECT_EQ(run.Find(ICON, 0, SECOND_PLAYER_Y), (Area{ 52, 105, 2 * 12 + 11, 11 }));
    EXPECT_EQ(run.Find(ICON, SECOND_PLAYER_Y), (Area{ 52, 225, 11, 11 }));

    second.isOut = true;
    second.length = 0;
    run.Process();
    EXPECT_TRUE(run.Shows(48, 201, GREY, 0) && run.Shows(48, 242, GREY, 70));
    EXPECT_EQ(run.Find(HEART, SECOND_PLAYER_Y), Area{});

    BarGame alone;
    alone.pond.snake[1].score = 70; // left over from another game
    alone.Frame(0);
    EXPECT_TRUE(alone.Shows(48, 201, GREY, 0) && alone.Shows(48, 242, GREY, 0));
}

TEST(StatusBar, BlinksBeforeATailFreezesAndBeforeAnEffect)
{
    BarGame run;
    run.snake.lastColour = PURPLE;
    const struct {
        int length, streak, lengthFrames, streakFrames;
    } cases[] = { { 23, 3, 25, 25 }, { 24, 4, 12, 12 } };
    for (const auto& [length, streak, lengthFrames, streakFrames] : cases) {
        run.snake.length = length;
        run.snake.streak = streak;
        int lengthShown = 0;
        int streakShown = 0;
        for (int i = 0; i < 25; ++i) {
            run.Process();
            lengthShown += run.Shows(48, 81, WHITE, length);
            streakShown += run.Find(ICON).width == (streak - 1) * 12 + 11;
        }
        EXPECT_EQ(lengthShown, lengthFrames);
        EXPECT_EQ(streakShown, streakFrames);
    }
}

TEST(StatusBar, CountsBerriesAndStones)
{
    BarGame run;
    run.EmptyPond();
    const int counts[] = { 11, 1, 20, 3, 41, 2 }; // by colour
    int next = 0;
    for (int colour = RED; colour <= GOLDEN; ++colour) {
        for (int i = 0; i < counts[colour]; ++i, ++next)
            run.pond.cells[next].occupied = run.pond.cells[next].ripe = true, run.pond.cells[next].colour = colour;
    }
    run.pond.TurnToStone(470, 470);
    run.Process();
    EXPECT_TRUE(run.Shows(38, 318, WHITE, 11) && run.Shows(98, 318, WHITE, 1) && run.Shows(38, 338, WHITE, 20));
    EXPECT_TRUE(run.Shows(98, 338, WHITE, 41)) << "purple stands before orange";
    EXPECT_TRUE(run.Shows(38, 358, WHITE, 3) && run.Shows(98, 358, WHITE, 2) && run.Shows(38, 398, WHITE, 1));
}

TEST(StatusBar, CannotLoadWithoutAPicture)
{
    const TestPictures pictures;
    std::filesystem::remove("Dat/Image/Help3.jpg");
    CStatusBar bar;
    bool done = false;
    EXPECT_TRUE(bar.DataLoad(done));
    lastError = ENGINE_NO_ERROR;
    EXPECT_FALSE(bar.DataLoad(done));
    EXPECT_EQ(lastError, ENGINE_LOAD_FILE);
    EXPECT_FALSE(done);
}
