#include "snake_fixture.h"

#include "game/water.h"

#include <vector>

namespace
{
struct KeyCase {
    const char* why;
    int heading;
    std::vector<int> keys;
    std::vector<int> queued;
};
using SnakeSteering = SnakeFixture;

TEST_F(SnakeSteering, QueuesOrRefusesKeys)
{
    const KeyCase cases[] = {
        { "turn", UP, { LEFT }, { LEFT } },
        { "own direction", UP, { UP }, { UP } },
        { "reverse of up", UP, { DOWN }, {} },
        { "reverse of down", DOWN, { UP }, {} },
        { "reverse of left", LEFT, { RIGHT }, {} },
        { "reverse of right", RIGHT, { LEFT }, {} },
        { "reverse of the last queued", UP, { LEFT, RIGHT }, { LEFT } },
        { "reverse in two steps", UP, { LEFT, DOWN }, { LEFT, DOWN } },
        { "repeated", UP, { LEFT, LEFT }, { LEFT } },
        { "others' keys", UP, { 'W', 13, 0, LEFT }, { LEFT } },
        { "the eleventh",
          UP,
          { LEFT, UP, LEFT, UP, LEFT, UP, LEFT, UP, LEFT, UP, LEFT },
          { LEFT, UP, LEFT, UP, LEFT, UP, LEFT, UP, LEFT, UP } },
    };
    for (const KeyCase& given : cases) {
        Snake().turnCount = 0;
        for (const int key : given.keys) {
            PutSnake(241, 241); // never on the grid: nothing leaves the queue
            Head().dir = given.heading;
            Frame(key);
        }
        EXPECT_EQ(std::vector(Snake().turnQueue, Snake().turnQueue + Snake().turnCount), given.queued) << given.why;
    }
}

struct WakeCase {
    int speed;
    int y; ///< of the head
    int key;
    bool isWaiting;
    bool splashes;
    const char* why;
};

TEST_F(SnakeSteering, SplashesWhenFastOrTurningAtAnEvenPlace)
{
    constexpr WakeCase cases[] = {
        { 2, 242, 0, false, false, "straight on" },  { 2, 242, LEFT, false, true, "a turn is queued" },
        { 2, 241, LEFT, false, false, "odd place" }, { 4, 241, 0, false, true, "fast" },
        { 4, 242, LEFT, true, false, "it waits" },
    };
    for (const WakeCase& given : cases) {
        PutSnake(240, given.y);
        Snake().speed = given.speed;
        Snake().isWaiting = given.isWaiting;
        Snake().turnCount = 0;
        WaterInit(waterBufferA, waterBufferB, 5, 3);
        Frame(given.key);
        EXPECT_EQ(water.current[(given.y + 8) * POND_SIZE + 248] != 0, given.splashes) << given.why;
    }
}
}
