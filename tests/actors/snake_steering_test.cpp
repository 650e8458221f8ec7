#include "snake_fixture.h"

#include <string>
#include <vector>

namespace
{
struct KeyCase {
    const char* name;
    int heading;
    std::vector<int> keys;
    std::vector<int> queued;
};
class SnakeKeys : public SnakeFixture, public testing::WithParamInterface<KeyCase>
{
};

TEST_P(SnakeKeys, AreQueuedOrRefused)
{
    PutSnake(241, 241); // never on the grid: nothing leaves the queue
    Head().dir = GetParam().heading;
    for (const int key : GetParam().keys)
        Frame(key);
    const std::vector<int> queue(Snake().turnQueue, Snake().turnQueue + Snake().turnCount);
    EXPECT_EQ(queue, GetParam().queued);
}

INSTANTIATE_TEST_SUITE_P(
    Steering, SnakeKeys,
    testing::Values(KeyCase{ "Turn", UP, { LEFT }, { LEFT } }, KeyCase{ "OwnDirection", UP, { UP }, { UP } },
                    KeyCase{ "ReverseOfUp", UP, { DOWN }, {} }, KeyCase{ "ReverseOfDown", DOWN, { UP }, {} },
                    KeyCase{ "ReverseOfLeft", LEFT, { RIGHT }, {} }, KeyCase{ "ReverseOfRight", RIGHT, { LEFT }, {} },
                    KeyCase{ "ReverseOfLastQueued", UP, { LEFT, RIGHT }, { LEFT } },
                    KeyCase{ "ReverseInTwoSteps", UP, { LEFT, DOWN }, { LEFT, DOWN } },
                    KeyCase{ "Repeated", UP, { LEFT, LEFT }, { LEFT } },
                    KeyCase{ "OthersKeys", UP, { 'W', 13, 0, LEFT }, { LEFT } },
                    KeyCase{ "EleventhDropped",
                             UP,
                             { LEFT, UP, LEFT, UP, LEFT, UP, LEFT, UP, LEFT, UP, LEFT },
                             { LEFT, UP, LEFT, UP, LEFT, UP, LEFT, UP, LEFT, UP } }),
    [](const auto& test) { return std::string(test.param.name); });

using SnakeSteering = SnakeFixture;

TEST_F(SnakeSteering, TurnsOncePerGridPoint)
{
    PutSnake(240, 256);
    Frame();
    for (const int key : { LEFT, DOWN, LEFT })
        Frame(key);
    const int expected[][2] = { { 240, 240 }, { 224, 240 }, { 224, 256 }, { 208, 256 } };
    Frames(4);
    for (const auto& [x, y] : expected) {
        EXPECT_EQ(Head().x, x);
        EXPECT_EQ(Head().y, y);
        Frames(8);
    }
}

TEST_F(SnakeSteering, WaitingSnakeLooksRoundUntilItsStartKey)
{
    PutSnake(240, 240);
    PutBerry(CellAt(240, 240), RED);
    Snake().isWaiting = true;
    Frame(DOWN); // even the reverse
    EXPECT_EQ(Head().dir, DOWN);
    Frame(RIGHT);
    EXPECT_TRUE(Snake().isWaiting);
    EXPECT_EQ(Snake().score, 0) << "it does not eat";
    Frame(RIGHT);
    EXPECT_FALSE(Snake().isWaiting);
    EXPECT_EQ(Head().x, 240) << "it moves from the next frame on";
    EXPECT_EQ(Snake().segments[4].dir, RIGHT);
    Frame();
    EXPECT_EQ(Head().x, 242);
}

TEST_F(SnakeSteering, StartsOnlyWithBothHeadsOnTheGrid)
{
    PutSnake(240, 240);
    Snake().isWaiting = true;
    pond->snake[1].segments[0] = { .x = 100, .y = 96, .dir = 'D' };
    Frame(UP);
    EXPECT_TRUE(Snake().isWaiting);
    pond->snake[1].segments[0].x = 112;
    Frame();
    EXPECT_FALSE(Snake().isWaiting);
}
}
