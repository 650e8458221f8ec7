#include "support/test_game.h"

#include "app/frame_images.h"

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
using SnakeSteering = PondTest;

TEST_F(SnakeSteering, QueuesOrRefusesKeys)
{
    const KeyCase cases[] = {
        { "turn", VK_UP, { VK_LEFT }, { VK_LEFT } },
        { "own direction", VK_UP, { VK_UP }, { VK_UP } },
        { "reverse of up", VK_UP, { VK_DOWN }, {} },
        { "reverse of down", VK_DOWN, { VK_UP }, {} },
        { "reverse of left", VK_LEFT, { VK_RIGHT }, {} },
        { "reverse of right", VK_RIGHT, { VK_LEFT }, {} },
        { "reverse of the last queued", VK_UP, { VK_LEFT, VK_RIGHT }, { VK_LEFT } },
        { "reverse in two steps", VK_UP, { VK_LEFT, VK_DOWN }, { VK_LEFT, VK_DOWN } },
        { "repeated", VK_UP, { VK_LEFT, VK_LEFT }, { VK_LEFT } },
        { "others' keys", VK_UP, { 'W', 13, 0, VK_LEFT }, { VK_LEFT } },
        { "the eleventh",
          VK_UP,
          { VK_LEFT, VK_UP, VK_LEFT, VK_UP, VK_LEFT, VK_UP, VK_LEFT, VK_UP, VK_LEFT, VK_UP, VK_LEFT },
          { VK_LEFT, VK_UP, VK_LEFT, VK_UP, VK_LEFT, VK_UP, VK_LEFT, VK_UP, VK_LEFT, VK_UP } },
    };
    for (const KeyCase& given : cases) {
        snake.turnCount = 0;
        for (const int key : given.keys) {
            PutSnake(241, 241); // never on the grid: nothing leaves the queue
            snake.segments[0].dir = given.heading;
            SnakeFrame(key);
        }
        EXPECT_EQ(std::vector(snake.turnQueue, snake.turnQueue + snake.turnCount), given.queued) << given.why;
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
        { 2, 242, 0, false, false, "straight on" },     { 2, 242, VK_LEFT, false, true, "a turn is queued" },
        { 2, 241, VK_LEFT, false, false, "odd place" }, { 4, 241, 0, false, true, "fast" },
        { 4, 242, VK_LEFT, true, false, "it waits" },
    };
    for (const WakeCase& given : cases) {
        PutSnake(240, given.y);
        snake.speed = given.speed;
        snake.isWaiting = given.isWaiting;
        snake.turnCount = 0;
        WaterInit(waterBufferA, waterBufferB, 5, 3);
        SnakeFrame(given.key);
        EXPECT_EQ(water.current[(given.y + 8) * POND_SIZE + 248] != 0, given.splashes) << given.why;
    }
}
}
