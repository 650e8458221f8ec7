#pragma once

#include "game/pond.h"
#include "platform/window.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

/// The keys of the games that tests play, in the order up, down, left, right.
constexpr uint32_t testKeys[2][4] = { { 38, 40, 37, 39 }, { 'W', 'S', 'A', 'D' } };

/// A game without a window, with stand-in pictures, past its fade-in; its snakes wait, out of the way, below the pond.
class PondTest : public testing::Test
{
protected:
    PondTest();

    /// 0 = one player, 1 = two.
    void StartGame(int players);
    /// Frames of play, as the game scene runs them.
    void Play(int frames);
    /// A frame of the first player's snake alone.
    void SnakeFrame(int key = 0);

    /// A snake that moves, long on its way, its head going up at (x, y).
    void PutSnake(int x, int y, int length = 5, int player = 0);
    static void MakeRipe(Cell& cell, int colour);
    Cell& CellIn(int column, int row) { return pond.cells[row * CELL_COLUMNS + column]; }
    void MakeStone(const Cell& cell) { pond.TurnToStone(cell.x, cell.y); }

    TestPictures pictures;
    CPond pond;
    CSnake& snake = pond.snake[0];
};
