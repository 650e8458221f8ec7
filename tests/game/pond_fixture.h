#pragma once

#include "app/globals.h"
#include "app/random.h"
#include "game/pond.h"
#include "support/game_fixture.h"
#include "support/test_pictures.h"

/// A pond with its resources and a one-player game whose only snake waits, out of the way, below the pond's bottom.
class PondTest : public GameFixture
{
protected:
    void SetUp() override
    {
        GameFixture::SetUp();
        scenery = SceneryState{};
        blinkCounter = 0;
        bool done = false;
        while (!done)
            ASSERT_TRUE(pond.DataLoad(done));
        done = false;
        while (!done)
            ASSERT_TRUE(pond.statusBar.DataLoad(done));
        StartGame(0);
    }

    /// Past the fade-in, the snakes waiting below the pond with their starting berries placed.
    void StartGame(int players)
    {
        ASSERT_TRUE(pond.NewGame(players, KEYS, KEYS + 4));
        pond.introFrames = 31;
        for (CSnake& each : pond.snake) {
            each.isWaiting = true;
            each.frameCount = 1000;
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
            pond.GameFrame(pondImage, 0);
    }

    Cell& CellIn(int column, int row) { return pond.cells[row * CELL_COLUMNS + column]; }
    static void MakeRipe(Cell& cell, int colour)
    {
        cell.occupied = cell.ripe = cell.splashed = true;
        cell.colour = colour;
    }
    void MakeStone(Cell& cell) { pond.TurnToStone(cell.x, cell.y); }

    /// Makes pictures plain, so that a pixel tells which one was drawn.
    static void Paint(CImage& image, uint16_t colour, BlitRoutine blit)
    {
        image.Fill(colour);
        image.blit = blit;
    }
    static uint16_t Pixel(const CImage& image, int x, int y) { return image.Row(y)[x]; }

    /// Up, down, left, right of each player.
    static constexpr uint32_t KEYS[] = { 38, 40, 37, 39, 87, 83, 65, 68 };

    TestPictures pictures;
    CPond pond;
};
