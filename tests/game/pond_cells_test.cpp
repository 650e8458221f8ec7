#include "game/section_main.h"
#include "platform/window.h"
#include "support/session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace
{
/// A game of one player that has begun.
struct PondCells : testing::Test {
    PondCells() { session.Frame(); }

    Session session{ 0, 1 };
    CPond& pond = sectionMain.pond;
};

struct SearchCase {
    std::vector<int> freeCells;
    int start;
    int chosen;
    const char* why;
};

TEST_F(PondCells, SearchBerryCellUpwardFarFromTheHead)
{
    constexpr int head = 15 * CELL_COLUMNS + 15;
    pond.snake[0].segments[0] = { .x = 15 * CELL_SIZE, .y = 15 * CELL_SIZE, .dir = VK_UP };
    const SearchCase cases[] = {
        { { 7, 40, 800 }, 20, 40, "the next one up" },
        { { 3, 800 }, 850, 3, "wraps around at the end" },
        { { head + 6, head + 7 }, head, head + 7, "6 columns away is near" },
        { { head - 6 * CELL_COLUMNS, head - 7 * CELL_COLUMNS }, 0, head - 7 * CELL_COLUMNS, "7 rows away is far" },
        { { head }, 123, 123, "none: the start is taken" },
    };
    for (const SearchCase& search : cases) {
        for (Cell& cell : pond.cells)
            cell.occupied = true;
        for (const int cell : search.freeCells)
            pond.cells[cell].occupied = false;
        pond.cells[search.chosen].growth = 0;
        pond.PlaceBerry(GREEN, search.start);
        EXPECT_EQ(pond.cells[search.chosen].growth, 28) << search.why;
    }
}
}
