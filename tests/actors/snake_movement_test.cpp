#include "snake_fixture.h"

namespace
{
using SnakeMovement = SnakeFixture;

TEST_F(SnakeMovement, ATurnInTheFirstFrameStaysOnThePond)
{
    Frame(LEFT);
    EXPECT_TRUE(IsCell(CellAt(Head().x, Head().y)));
    Frames(100);
    for (int i = 1; i < Snake().length; ++i)
        EXPECT_EQ(Snake().segments[i].x, Head().x + CELL_SIZE * i);
}

TEST_F(SnakeMovement, OfAStackOnlyTheTailWaitsToCoil)
{
    PutSnake(240, 240);
    for (int i = 1; i < 5; ++i)
        Snake().segments[i].y = 256;
    Snake().SnakeGather();
    Frames(8);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Snake().segments[i].y, i < 4 ? 240 : 256);
    Frames(8);
    EXPECT_EQ(Snake().segments[4].y, 240);
}
}
