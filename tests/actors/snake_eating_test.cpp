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
using SnakeEating = SnakeFixture;

TEST_F(SnakeEating, ScoresBerries)
{
    constexpr ScoreCase cases[] = {
        { BLUE, 0, 2, false, 5, -1 },   { BLUE, 0, 4, false, 10, 0 },
        { BLUE, 1, 2, false, 15, 1 },   { BLUE, 349, 4, false, 20, 2 },
        { GOLDEN, 0, 2, false, 35, 3 }, { GOLDEN, 0, 4, false, 40, 4 },
        { GOLDEN, 1, 2, false, 45, 5 }, { GOLDEN, 1, 4, false, 50, 6 },
        { BLUE, 350, 2, false, 5, -1 }, // it only thunders
        { BLUE, 0, 4, true, 5, -1 },    // about to be slow
    };
    for (const ScoreCase& given : cases) {
        Snake().score = 0;
        Snake().rainTimer = given.rainTimer;
        Snake().speed = given.speed;
        Snake().slowDownPending = given.slowDownPending;
        pond->popups[0].active = false;
        PutSnakeBeforeGrid();
        PutBerry(GRID_CELL, given.colour);
        Frame();
        EXPECT_EQ(Snake().score, given.points);
        EXPECT_EQ(pond->popups[0].active ? pond->popups[0].kind : -1, given.popup) << given.points;
        EXPECT_EQ(Snake().eyeFrame, 1);
    }
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
}
