#include "support/test_game.h"

#include "app/frame_images.h"
#include "app/random.h"
#include "app/scenes.h"
#include "game/water.h"

PondTest::PondTest()
{
    backBuffer.Create(SCREEN_WIDTH, SCREEN_HEIGHT);
    for (CImage* image : { &pondImage, &waterBufferA, &waterBufferB })
        image->Create(POND_SIZE, POND_SIZE);
    WaterInit(waterBufferA, waterBufferB, 5, 3);
    scenery = SceneryState{};
    for (bool done = false; !done;)
        EXPECT_TRUE(pond.DataLoad(done));
    for (bool done = false; !done;)
        EXPECT_TRUE(pond.statusBar.DataLoad(done));
    SeedRandom(1);
    StartGame();
}

void PondTest::StartGame()
{
    constexpr uint32_t keys[2][4] = { { VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT }, { 'W', 'S', 'A', 'D' } };
    ASSERT_TRUE(pond.NewGame(0, keys[0], keys[1]));
    pond.introFrames = 31;
    for (CSnake& each : pond.snake) {
        each.isWaiting = true;
        each.frameCount = 1000; // its starting berries are placed
    }
}

void PondTest::Play(int frames)
{
    for (int i = 0; i < frames; ++i)
        pond.GameFrame(pondImage, 0);
}

void PondTest::SnakeFrame(int key)
{
    snake.SnakeProcess(pondImage, key);
    snake.SnakeReleaseStart();
    snake.SnakeEndSlowDown();
}

void PondTest::PutSnake(int x, int y)
{
    for (int i = 0; i < snake.length; ++i)
        snake.segments[i] = { .x = x, .y = (y + i * CELL_SIZE) % POND_SIZE, .dir = VK_UP };
    snake.frameCount = snake.movedFrames = 100;
    snake.isWaiting = false;
}

void PondTest::MakeRipe(Cell& cell, int colour)
{
    cell.occupied = cell.ripe = cell.splashed = true;
    cell.growth = 0;
    cell.colour = colour;
}
