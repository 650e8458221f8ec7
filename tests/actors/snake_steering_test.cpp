#include "support/test_game.h"

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

}
