#include "support/test_game.h"

#include "app/frame_images.h"
#include "app/input.h"
#include "app/random.h"
#include "app/scenes.h"
#include "game/water.h"

namespace
{
/// Repeats the loading steps of pond or status bar.
template <typename Owner>
void LoadAll(Owner& owner)
{
    for (bool done = false; !done;)
        ASSERT_TRUE(owner.DataLoad(done));
}
}

PondTest::PondTest()
{
    for (CImage* image : { &backBuffer, &screenCopy })
        image->Create(SCREEN_WIDTH, SCREEN_HEIGHT);
    for (CImage* image : { &pondImage, &waterBufferA, &waterBufferB })
        image->Create(POND_SIZE, POND_SIZE);
    WaterInit(waterBufferA, waterBufferB, 5, 3);
    input = InputState{};
    captureScreen = false;
    requestedSection = nullptr;
    scenery = SceneryState{};
    blinkCounter = 0;
    LoadAll(pond);
    LoadAll(pond.statusBar);
    SeedRandom(1);
    StartGame(0);
}

void PondTest::StartGame(int players)
{
    ASSERT_TRUE(pond.NewGame(players, testKeys[0], testKeys[1]));
    pond.introFrames = 31;
    for (CSnake& each : pond.snake) {
        each.isWaiting = true;
        each.frameCount = 1000; // its starting berries are placed
    }
}

void PondTest::Play(int frames)
{
    for (int i = 0; i < frames; ++i) {
        pond.GameFrame(pondImage, input.lastKeyDown);
        input.lastKeyDown = 0;
    }
}

void PondTest::SnakeFrame(int key)
{
    snake.SnakeProcess(pondImage, key);
    snake.SnakeReleaseStart();
    snake.SnakeEndSlowDown();
}

void PondTest::PutSnake(int x, int y, int length, int player)
{
    CSnake& put = pond.snake[player];
    put.length = length;
    for (int i = 0; i < length; ++i)
        put.segments[i] = { .x = x, .y = (y + i * CELL_SIZE) % POND_SIZE, .dir = put.keyUp };
    put.frameCount = put.movedFrames = 100;
    put.isWaiting = false;
}

void PondTest::MakeRipe(Cell& cell, int colour)
{
    cell.occupied = cell.ripe = cell.splashed = true;
    cell.growth = 0;
    cell.colour = colour;
}
