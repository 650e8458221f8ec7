#pragma once

#include "game/pond.h"
#include "platform/window.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

/// A one-player game without a window, with stand-in pictures, past its fade-in; its snakes wait, out of the way,
/// below the pond.
class PondTest : public testing::Test
{
protected:
    PondTest();

    /// Empties the pond, too.
    void StartGame();
    /// Frames of play, as the game scene runs them.
    void Play(int frames);
    /// A frame of the first player's snake alone.
    void SnakeFrame(int key = 0);

    /// The first snake moves, long on its way, its head going up at (x, y).
    void PutSnake(int x, int y);
    static void MakeRipe(Cell& cell, int colour);
    Cell& CellIn(int column, int row) { return pond.cells[row * CELL_COLUMNS + column]; }

    TestPictures pictures;
    CPond pond;
    CSnake& snake = pond.snake[0];
};
