#include "support/test_game.h"

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
using SnakeEating = PondTest;

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
        snake.score = 0;
        snake.rainTimer = given.rainTimer;
        snake.speed = given.speed;
        snake.slowDownPending = given.slowDownPending;
        pond.popups[0].active = false;
        PutSnake(240, 32 + snake.speed); // its head comes onto a grid point
        MakeRipe(CellIn(15, 2), given.colour);
        SnakeFrame();
        EXPECT_EQ(snake.score, given.points);
        EXPECT_EQ(pond.popups[0].active ? pond.popups[0].kind : -1, given.popup) << given.points;
        EXPECT_EQ(snake.eyeFrame, 1);
    }
}

}
