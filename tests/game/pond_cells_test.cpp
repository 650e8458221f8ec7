#include "support/test_game.h"

#include <algorithm>
#include <vector>

namespace
{
using PondCells = PondTest;

struct SearchCase {
    std::vector<int> freeCells;
    int start;
    int chosen;
    const char* why;
};

TEST_F(PondCells, SearchBerryCellUpwardFarFromTheHead)
{
    constexpr int head = 15 * CELL_COLUMNS + 15;
    PutSnake(15 * CELL_SIZE, 15 * CELL_SIZE);
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

/// What the head makes of one berry beside it, for the eight places around it, row by row.
struct LookRow {
    int heading;
    int eyeFrames[9];
};
struct LookCase {
    int heading;
    int head; ///< cell
    std::vector<int> berries;
    int eyeFrame;
    const char* why;
};

TEST_F(PondCells, LookAtBerriesBesideTheHead)
{
    constexpr int head = 10 * CELL_COLUMNS + 10;
    constexpr LookRow rows[] = {
        { HEADING_LEFT, { 4, 5, 0, 0, 0, 0, 2, 3, 0 } },
        { HEADING_UP, { 2, 0, 4, 3, 0, 5, 0, 0, 0 } },
        { HEADING_RIGHT, { 0, 3, 2, 0, 0, 0, 0, 5, 4 } },
        { HEADING_DOWN, { 0, 0, 0, 5, 0, 3, 4, 0, 2 } },
        { 13, { 0, 0, 0, 0, 0, 0, 0, 0, 0 } },
    };
    std::vector<LookCase> cases = {
        { HEADING_LEFT, head, { head - 30, head + 29 }, 2, "the first test that holds counts" },
        { HEADING_DOWN, head, { head - 1, head + 1 }, 5, "down looks at its right side first" },
        { HEADING_UP, 10 * 30, { 10 * 30 - 1, 9 * 30 - 1 }, 0, "not around the left edge" },
        { HEADING_DOWN, 10 * 30 + 29, { 11 * 30, 12 * 30 }, 0, "not around the right edge" },
        { HEADING_LEFT, 5, { 35 }, 3, "top row" },
        { HEADING_LEFT, 29 * 30 + 5, { 28 * 30 + 4 }, 4, "bottom row" },
    };
    for (const LookRow& row : rows)
        for (int i = 0; i < 9; ++i)
            if (i != 4)
                cases.push_back({ row.heading, head, { head + (i / 3 - 1) * 30 + i % 3 - 1 }, row.eyeFrames[i], "" });
    for (const LookCase& look : cases) {
        StartGame();
        for (const int cell : look.berries)
            MakeRipe(pond.cells[cell], RED);
        int colour = -1;
        int eyeFrame = -1;
        EXPECT_FALSE(pond.EatAt(pond.cells[look.head].x, pond.cells[look.head].y, colour, look.heading, eyeFrame));
        EXPECT_EQ(eyeFrame, look.eyeFrame) << look.heading << " at " << look.berries[0] - look.head << look.why;
    }
}

}
