#include "snake_fixture.h"

#include <algorithm>

namespace
{
class SnakeDeath : public SnakeFixture
{
protected:
    /// Dies at (240, 32) on its way up.
    void Die(int length, int lives)
    {
        PutSnakeBeforeGrid(length);
        Snake().lives = lives;
        pond->TurnToStone(240, 32);
        Frame();
        ASSERT_TRUE(Snake().isDying);
    }
};

TEST_F(SnakeDeath, RespawnsOneCellBehindAndWaits)
{
    Die(7, 2);
    Snake().speed = 4;
    Frames(20 + 2 * (7 + 10) - 1);
    EXPECT_TRUE(Snake().isDying);
    Frame();
    EXPECT_FALSE(Snake().isDying);
    EXPECT_TRUE(Snake().isWaiting);
    EXPECT_EQ(Snake().lives, 1);
    EXPECT_EQ(Snake().length, 5);
    EXPECT_EQ(Snake().speed, 2);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Snake().segments[i].y, 48);
    EXPECT_EQ(Head().dir, UP);
}

TEST_F(SnakeDeath, TheLastSpareLifeIsPlayed)
{
    Die(5, 1);
    Frames(50);
    EXPECT_EQ(Snake().lives, 0);
    EXPECT_EQ(Snake().length, 5);
    EXPECT_FALSE(Snake().isOut);
    Frame(UP);
    Frames(8);
    EXPECT_EQ(Head().y, 32) << "through the stone that killed it: it is safe at first";
}

struct OutCase {
    int length;
    int goneFrame; ///< after the death
    int outFrame;
};
class SnakeOut : public SnakeDeath, public testing::WithParamInterface<OutCase>
{
};

TEST_P(SnakeOut, LeavesThePondWithoutLives)
{
    Die(GetParam().length, 0);
    Frames(GetParam().goneFrame - 1);
    EXPECT_EQ(Snake().length, GetParam().length);
    Frame();
    EXPECT_EQ(Snake().length, 0);
    int x = 0;
    int y = 0;
    EXPECT_FALSE(Snake().SnakeGetHead(x, y));
    Frames(GetParam().outFrame - 1 - GetParam().goneFrame);
    EXPECT_FALSE(Snake().isOut);
    Frame();
    EXPECT_TRUE(Snake().isOut);

    // Nothing revives it: neither a level's end nor a key.
    Snake().SnakeGather();
    Snake().SnakeRestart();
    Frame(UP);
    EXPECT_EQ(Snake().length, 0);
    EXPECT_TRUE(Snake().isActive);
    EXPECT_FALSE(Snake().isWaiting);
}

INSTANTIATE_TEST_SUITE_P(Death, SnakeOut, testing::Values(OutCase{ 5, 30, 40 }, OutCase{ 20, 60, 61 }));
}
