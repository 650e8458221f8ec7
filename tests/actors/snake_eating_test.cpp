#include "snake_fixture.h"

namespace
{
struct ScoreCase {
    int colour;
    int rainTimer;
    int speed;
    bool slowDownPending;
    int points;
    int popup; ///< -1 none
};
class SnakeScore : public SnakeFixture, public testing::WithParamInterface<ScoreCase>
{
};

TEST_P(SnakeScore, CountsBerries)
{
    const ScoreCase& c = GetParam();
    Snake().rainTimer = c.rainTimer;
    Snake().speed = c.speed;
    PutSnakeBeforeGrid();
    PutBerry(GRID_CELL, c.colour);
    if (c.slowDownPending)
        Snake().slowDownPending = true;
    Frame();
    EXPECT_EQ(Snake().score, c.points);
    EXPECT_EQ(pond->popups[0].active ? pond->popups[0].kind : -1, c.popup);
    EXPECT_EQ(Snake().length, 6);
    EXPECT_EQ(Snake().eyeFrame, 1);
}

INSTANTIATE_TEST_SUITE_P(Eating, SnakeScore,
                         testing::Values(ScoreCase{ BLUE, 0, 2, false, 5, -1 }, ScoreCase{ BLUE, 0, 4, false, 10, 0 },
                                         ScoreCase{ BLUE, 1, 2, false, 15, 1 }, ScoreCase{ BLUE, 349, 4, false, 20, 2 },
                                         ScoreCase{ GOLDEN, 0, 2, false, 35, 3 },
                                         ScoreCase{ GOLDEN, 0, 4, false, 40, 4 },
                                         ScoreCase{ GOLDEN, 1, 2, false, 45, 5 },
                                         ScoreCase{ GOLDEN, 1, 4, false, 50, 6 },
                                         ScoreCase{ BLUE, 350, 2, false, 5, -1 }, // it only thunders
                                         ScoreCase{ BLUE, 0, 4, true, 5, -1 }));  // about to be slow

using SnakeEating = SnakeFixture;

TEST_F(SnakeEating, GoldenBerryEndsTheStreakButNotItsColour)
{
    Snake().lastColour = GREEN;
    Snake().streak = 3;
    PutSnakeBeforeGrid();
    PutBerry(GRID_CELL, GOLDEN);
    Frame();
    EXPECT_EQ(Snake().streak, 0);
    EXPECT_EQ(Snake().lastColour, GREEN);
}

TEST_F(SnakeEating, GrowsBehindItsTail)
{
    PutSnakeBeforeGrid();
    PutBerry(GRID_CELL, RED);
    Frames(1 + 8);
    EXPECT_EQ(Head().y, 16);
    EXPECT_EQ(Snake().segments[5].y, Snake().segments[4].y + CELL_SIZE);
}

TEST_F(SnakeEating, LeavesItsTailAsStonesAtFullLength)
{
    PutSnakeBeforeGrid(24);
    PutBerry(GRID_CELL, RED);
    Frame();
    EXPECT_EQ(Snake().length, 25);
    EXPECT_EQ(pond->CountStones(), 0) << "not before the next grid point";
    Frames(8);
    EXPECT_EQ(Snake().length, 5);
    EXPECT_EQ(pond->CountStones(), 20);
    const Segment& last = Snake().segments[24];
    EXPECT_EQ(pond->cells[CellAt(last.x, last.y)].age, 20) << "the tail's end is the newest stone";
    Frames(100);
    EXPECT_FALSE(Snake().isDying);
}

TEST_F(SnakeEating, StonesKillOnlyAfterFiftyMovedFrames)
{
    for (const int moved : { 50, 51 }) {
        PutSnakeBeforeGrid();
        pond->TurnToStone(240, 32);
        Snake().movedFrames = moved - 1;
        Frame();
        EXPECT_EQ(Snake().isDying, moved > 50);
    }
}

TEST_F(SnakeEating, EatsInTheFrameOfItsDeath)
{
    PutSnakeBeforeGrid();
    Snake().segments[4] = { .x = 240, .y = 32, .dir = 0 };
    PutBerry(GRID_CELL, RED);
    Frame();
    EXPECT_TRUE(Snake().isDying);
    EXPECT_EQ(Snake().score, 5);
}
}
