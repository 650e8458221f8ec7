#include "snake_fixture.h"

namespace
{
using SnakeEffects = SnakeFixture;

TEST_F(SnakeEffects, RedMakesItFastAndTheNextRedSlowAgain)
{
    Snake().lastColour = RED;
    Snake().streak = 4;
    PutSnakeBeforeGrid(12);
    PutBerry(GRID_CELL, RED);
    Frames(1 + 39);
    EXPECT_EQ(Snake().speed, 2) << "not between grid points";
    Frame();
    EXPECT_EQ(Snake().speed, 4);

    pond->snake[1].segments[0].x = 2; // off the grid
    PutSnakeBeforeGrid();
    PutBerry(GRID_CELL, RED);
    Frame();
    EXPECT_TRUE(Snake().slowDownPending);
    EXPECT_EQ(Snake().speed, 4);
    Frames(3);
    pond->snake[1].segments[0].x = 16;
    EXPECT_EQ(Snake().speed, 4) << "its own head is off the grid";
    Frame();
    EXPECT_EQ(Snake().speed, 2);
    EXPECT_FALSE(Snake().slowDownPending);
}
}
