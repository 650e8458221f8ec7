#include "snake_fixture.h"

#include "app/random.h"
#include "game/water.h"

#include <algorithm>
#include <vector>

namespace
{
class SnakeEffects : public SnakeFixture
{
protected:
    void EatFifthOf(int colour)
    {
        Snake().lastColour = colour;
        Snake().streak = 4;
        PutSnakeBeforeGrid(12);
        PutBerry(GRID_CELL, colour);
        Frame();
        EXPECT_EQ(Snake().streak, 0);
        EXPECT_EQ(Snake().lastColour, -1);
    }
    int Growing() const
    {
        return static_cast<int>(std::ranges::count_if(pond->cells, [](const Cell& c) { return c.growth > 0; }));
    }
};

TEST_F(SnakeEffects, RedMakesItFastAndTheNextRedSlowAgain)
{
    EatFifthOf(RED);
    Frames(39);
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

TEST_F(SnakeEffects, GreenFadesTheFiveOldestStones)
{
    for (int i = 0; i < 7; ++i)
        pond->TurnToStone(CELL_SIZE * i, 0);
    EatFifthOf(GREEN);
    EXPECT_EQ(pond->CountStones(), 2);
    EXPECT_TRUE(pond->cells[6].IsStone());
}

TEST_F(SnakeEffects, OrangeFiresALaserAlongTheHeading)
{
    EatFifthOf(ORANGE);
    ASSERT_TRUE(pond->lasers[0].active);
    EXPECT_EQ(pond->lasers[0].heading, HEADING_UP);
    EXPECT_EQ(pond->lasers[0].x, 240);
    EXPECT_EQ(pond->lasers[0].y, 32);
}

TEST_F(SnakeEffects, PurplePopsHalfTheBody)
{
    EatFifthOf(PURPLE);
    for (const int expected : { 13, 12, 11, 10, 9, 8, 7, 6, 6 }) { // the larger half goes
        EXPECT_EQ(Snake().length, expected);
        Frame();
    }
}

TEST_F(SnakeEffects, BlueLetsItRain)
{
    EatFifthOf(BLUE);
    EXPECT_EQ(Snake().rainTimer, 375);
    PutSnake(241, 241); // off the grid: nothing else happens
    std::fill(std::begin(pond->cells), std::end(pond->cells), Cell{});
    SeedRandom(7);
    std::vector<int> berryFrames;
    while (Snake().rainTimer > 0) {
        const int framesLeft = Snake().rainTimer;
        const int before = Growing();
        Frame();
        if (Growing() > before)
            berryFrames.push_back(framesLeft);
    }
    EXPECT_EQ(berryFrames, (std::vector{ 325, 275, 225, 175, 125 }));

    const uint32_t state = RandomState();
    SeedRandom(7);
    for (int i = 0; i < 349 * 5 * 2 + 5 * 2; ++i) // drops, then colour and cell of each berry
        Random();
    EXPECT_EQ(RandomState(), state);
}

TEST_F(SnakeEffects, DropsFallAtTheDrawnXThenY)
{
    PutSnake(241, 241);
    Snake().rainTimer = 349;
    SeedRandom(7);
    Frame();
    const std::vector<int16_t> rained(water.current, water.current + water.fieldBytes / 2);
    std::fill(water.current, water.current + water.fieldBytes / 2, int16_t{ 0 });
    SeedRandom(7);
    for (int i = 0; i < 5; ++i) {
        const int x = Random() % POND_SIZE;
        DisturbWater(x, Random() % POND_SIZE, 4, 170);
    }
    EXPECT_TRUE(std::equal(rained.begin(), rained.end(), water.current));
}
}
