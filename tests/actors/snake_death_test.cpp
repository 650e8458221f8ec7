#include "snake_fixture.h"

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

TEST_F(SnakeDeath, RespawnsSlowAndSafe)
{
    Die(7, 1);
    Snake().speed = 4;
    Frames(20 + 2 * (7 + 10) - 1);
    EXPECT_TRUE(Snake().isDying);
    Frame();
    EXPECT_FALSE(Snake().isDying);
    EXPECT_EQ(Snake().speed, 2);
    Frame(UP);
    Frames(8);
    EXPECT_EQ(Head().y, 32) << "through the stone that killed it, from one cell behind";
}

TEST_F(SnakeDeath, LeavesThePondWithoutLivesAndNothingRevivesIt)
{
    Die(20, 0);
    Frames(59);
    EXPECT_EQ(Snake().length, 20);
    Frame();
    int x = 0;
    int y = 0;
    EXPECT_FALSE(Snake().SnakeGetHead(x, y));
    EXPECT_FALSE(Snake().isOut);
    Frame();
    EXPECT_TRUE(Snake().isOut);

    Snake().SnakeGather();
    EXPECT_TRUE(Snake().isActive);
    Snake().SnakeRestart();
    EXPECT_EQ(Snake().length, 0);
    EXPECT_FALSE(Snake().isWaiting);
}
}
