#pragma once

#include "app/frame_images.h"
#include "game/pond.h"
#include "support/game_fixture.h"
#include "support/test_game.h"
#include "support/test_pictures.h"

#include <memory>

constexpr int UP = 38;
constexpr int DOWN = 40;
constexpr int LEFT = 37;
constexpr int RIGHT = 39;

/// The first player's snake in a new game on an empty pond, driven without the rest of the game's frame.
class SnakeFixture : public GameFixture
{
protected:
    static void SetUpTestSuite() { pictures = std::make_unique<TestPictures>(); }
    static void TearDownTestSuite() { pictures.reset(); }

    void SetUp() override
    {
        GameFixture::SetUp();
        pond = std::make_unique<CPond>();
        ASSERT_TRUE(pond->NewGame(0, testKeys[0], testKeys[1]));
    }

    CSnake& Snake() { return pond->snake[0]; }
    Segment& Head() { return pond->snake[0].segments[0]; }

    void Frame(int key = 0)
    {
        Snake().SnakeProcess(pondImage, key);
        Snake().SnakeReleaseStart();
        Snake().SnakeEndSlowDown();
    }
    void Frames(int count)
    {
        for (int i = 0; i < count; ++i)
            Frame();
    }

    /// A straight, moving snake long on its way, its head going up at (x, y).
    void PutSnake(int x, int y, int length = 5)
    {
        Snake().length = length;
        for (int i = 0; i < length; ++i)
            Snake().segments[i] = { .x = x, .y = (y + i * CELL_SIZE) % POND_SIZE, .dir = UP };
        Snake().frameCount = 100;
        Snake().movedFrames = 100;
    }
    /// One frame before its head comes onto the grid point (240, 32).
    void PutSnakeBeforeGrid(int length = 5) { PutSnake(240, 32 + Snake().speed, length); }
    static constexpr int GRID_CELL = 2 * CELL_COLUMNS + 15;

    void PutBerry(int cell, int colour)
    {
        pond->cells[cell].occupied = true;
        pond->cells[cell].ripe = true;
        pond->cells[cell].colour = colour;
    }

    static std::unique_ptr<TestPictures> pictures;
    std::unique_ptr<CPond> pond;
};
inline std::unique_ptr<TestPictures> SnakeFixture::pictures;
