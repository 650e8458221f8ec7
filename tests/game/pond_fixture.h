#pragma once

#include "app/frame_images.h"
#include "app/random.h"
#include "game/water.h"
#include "gfx/blit.h"
#include "support/test_game.h"

#include <gtest/gtest.h>

/// A game past its fade-in whose snakes wait, out of the way, below the pond.
class PondTest : public testing::Test
{
protected:
    void SetUp() override { StartGame(0); }

    void StartGame(int players)
    {
        ASSERT_TRUE(pond.NewGame(players, testKeys[0], testKeys[1]));
        pond.introFrames = 31;
        for (CSnake& each : pond.snake) {
            each.isWaiting = true;
            each.frameCount = 1000; // its starting berries are placed
        }
    }

    void PlaceHead(int player, int x, int y)
    {
        pond.snake[player].length = 1;
        pond.snake[player].segments[0] = { x, y, pond.snake[player].keyUp };
    }

    void Play(int frames)
    {
        for (int i = 0; i < frames; ++i)
            game.Frame(0);
    }

    Cell& CellIn(int column, int row) { return pond.cells[row * CELL_COLUMNS + column]; }
    void MakeStone(const Cell& cell) { pond.TurnToStone(cell.x, cell.y); }
    static void MakeRipe(Cell& cell, int colour)
    {
        cell.occupied = cell.ripe = cell.splashed = true;
        cell.growth = 0;
        cell.colour = colour;
    }

    /// Makes a picture plain, so that a pixel tells whether it was drawn.
    static void Paint(CImage& image, int colour)
    {
        image.Fill(static_cast<uint16_t>(colour));
        image.blit = BlitCopy;
    }
    static uint16_t Pixel(const CImage& image, int x, int y) { return image.Row(y)[x]; }

    TestGame game{ 0, 1 };
    CPond& pond = game.pond;
};
