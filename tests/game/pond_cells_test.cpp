#include "game/pond_fixture.h"

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
    PlaceHead(0, 15 * CELL_SIZE, 15 * CELL_SIZE);
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

TEST_F(PondCells, KeepBerriesOffTheOtherPlayersSnake)
{
    StartGame(1);
    PlaceHead(1, 0, 0);
    pond.snake[1].length = 2;
    pond.snake[1].segments[1] = { 9 * CELL_SIZE, 0, 0 };
    pond.PlaceBerry(RED, 0);
    EXPECT_EQ(pond.cells[7].growth, 28) << "columns 0 to 6 are near the head";
    pond.PlaceBerry(RED, 8);
    pond.PlaceBerry(RED, 9);
    EXPECT_EQ(pond.cells[10].growth, 28) << "a segment lies in column 9";
}

TEST_F(PondCells, DrawColourThenCell)
{
    SeedRandom(5);
    const int colour = Random() % 5;
    const int cell = Random() % 900;
    const uint32_t after = RandomState();
    SeedRandom(5);
    pond.PlaceBerry(RANDOM, RANDOM);
    EXPECT_EQ(pond.cells[cell].growth, 28);
    EXPECT_EQ(pond.cells[cell].colour, colour);
    EXPECT_EQ(RandomState(), after);
}

struct LookCase {
    int headColumn, headRow;
    int heading;
    std::vector<int> berries; ///< cells
    int eyeFrame;
};

TEST_F(PondCells, LookAtBerriesBesideTheHead)
{
    constexpr int c = 10 * CELL_COLUMNS + 10;
    const LookCase cases[] = {
        { 10, 10, HEADING_LEFT, { c + 30 }, 3 },
        { 10, 10, HEADING_LEFT, { c + 29 }, 2 },
        { 10, 10, HEADING_LEFT, { c - 30 }, 5 },
        { 10, 10, HEADING_LEFT, { c - 31 }, 4 },
        { 10, 10, HEADING_LEFT, { c - 1, c + 1, c - 29, c + 31 }, 0 }, // ahead, behind, behind's sides
        { 10, 10, HEADING_LEFT, { c - 31, c - 30, c + 29 }, 2 },       // the first test that holds counts
        { 10, 10, HEADING_UP, { c - 1 }, 3 },
        { 10, 10, HEADING_UP, { c - 31 }, 2 },
        { 10, 10, HEADING_UP, { c + 1 }, 5 },
        { 10, 10, HEADING_UP, { c - 29 }, 4 },
        { 10, 10, HEADING_UP, { c - 30, c + 29, c + 30, c + 31 }, 0 },
        { 10, 10, HEADING_RIGHT, { c - 30 }, 3 },
        { 10, 10, HEADING_RIGHT, { c - 29 }, 2 },
        { 10, 10, HEADING_RIGHT, { c + 30 }, 5 },
        { 10, 10, HEADING_RIGHT, { c + 31 }, 4 },
        { 10, 10, HEADING_DOWN, { c - 1 }, 5 },
        { 10, 10, HEADING_DOWN, { c + 29 }, 4 },
        { 10, 10, HEADING_DOWN, { c + 1 }, 3 },
        { 10, 10, HEADING_DOWN, { c + 31 }, 2 },
        { 10, 10, HEADING_DOWN, { c - 1, c + 1 }, 5 }, // its right side first
        { 10, 10, 13, { c - 1, c + 1, c - 30, c + 30 }, 0 },
        // No look around the pond's edges
        { 0, 10, HEADING_UP, { 10 * CELL_COLUMNS - 1, 9 * CELL_COLUMNS - 1 }, 0 },
        { 0, 10, HEADING_LEFT, { 11 * CELL_COLUMNS - 1, 9 * CELL_COLUMNS - 1 }, 0 },
        { 29, 10, HEADING_DOWN, { 11 * CELL_COLUMNS, 12 * CELL_COLUMNS }, 0 },
        { 5, 0, HEADING_RIGHT, { 35 }, 5 },
        { 5, 29, HEADING_LEFT, { 28 * CELL_COLUMNS + 4 }, 4 },
    };
    for (const LookCase& look : cases) {
        StartGame(0);
        for (const int cell : look.berries)
            MakeRipe(pond.cells[cell], RED);
        int colour = -1;
        int eyeFrame = -1;
        EXPECT_FALSE(pond.EatAt(look.headColumn * CELL_SIZE, look.headRow * CELL_SIZE, colour, look.heading, eyeFrame));
        EXPECT_EQ(eyeFrame, look.eyeFrame) << "case " << &look - cases;
    }
}

TEST_F(PondCells, FeedRipeBerriesOnly)
{
    int colour = -1;
    int eyeFrame = -1;
    pond.PlaceBerry(RED, 95);
    MakeStone(pond.cells[96]);
    EXPECT_FALSE(pond.EatAt(pond.cells[95].x, pond.cells[95].y, colour, HEADING_UP, eyeFrame));
    EXPECT_FALSE(pond.EatAt(pond.cells[96].x, pond.cells[96].y, colour, HEADING_UP, eyeFrame));
    MakeRipe(pond.cells[97], GOLDEN);
    EXPECT_TRUE(pond.EatAt(pond.cells[97].x, pond.cells[97].y, colour, HEADING_UP, eyeFrame));
    EXPECT_EQ(colour, GOLDEN);
    EXPECT_EQ(eyeFrame, 1);
    EXPECT_EQ(std::ranges::count(pond.cells, 28, &Cell::growth), 2) << "a new berry takes its place";
    EXPECT_FALSE(pond.EatAt(240, POND_SIZE, colour, HEADING_UP, eyeFrame)) << "the head is still below the pond";
}

struct HighlightCase {
    int eaten; ///< cell
    int colour;
    std::vector<int32_t> left;
};

TEST_F(PondCells, HighlightTheFirstFiveBerriesUntilOneThatIsNotBlueIsEaten)
{
    const HighlightCase cases[] = {
        { 102, BLUE, { 100, 101, -1, 103, 104 } },
        { 105, BLUE, { -1, -1, -1, -1, -1 } },
        { 102, RED, { -1, -1, -1, -1, -1 } },
        { 105, GOLDEN, { -1, -1, -1, -1, -1 } },
    };
    for (const HighlightCase& given : cases) {
        StartGame(0);
        for (int cell = 100; cell <= 105; ++cell)
            pond.PlaceBerry(BLUE, cell);
        MakeRipe(pond.cells[given.eaten], given.colour);
        int colour = -1;
        int eyeFrame = -1;
        pond.EatAt(pond.cells[given.eaten].x, pond.cells[given.eaten].y, colour, HEADING_UP, eyeFrame);
        EXPECT_EQ(std::vector(std::begin(pond.highlight), std::end(pond.highlight)), given.left);
    }
}

TEST_F(PondCells, FadeTheOldestStonesFirst)
{
    for (const int cell : { 500, 20, 300 })
        MakeStone(pond.cells[cell]);
    pond.cells[600].age = 9;
    pond.PlaceBerry(RED, 600); // still growing, and older stones than it may follow
    MakeStone(pond.cells[700]);
    EXPECT_EQ(pond.cells[700].age, 10);

    pond.FadeStones(0);
    EXPECT_EQ(pond.CountStones(), 4);
    pond.FadeStones(1);
    EXPECT_TRUE(pond.cells[500].IsRipeBerry());
    EXPECT_FALSE(pond.cells[500].splashed);
    pond.cells[20].age = pond.cells[300].age;
    pond.FadeStones(1);
    EXPECT_TRUE(pond.cells[20].IsRipeBerry()) << "the lower cell wins a tie";
    const uint32_t before = RandomState();
    pond.FadeStones(5);
    EXPECT_EQ(pond.CountStones(), 0);
    EXPECT_EQ(pond.cells[600].growth, 28) << "growing berries are no stones";
    SeedRandom(before);
    EXPECT_EQ(pond.cells[300].colour, Random() % 5);
    EXPECT_EQ(pond.cells[700].colour, Random() % 5) << "one number for each stone";
}

TEST_F(PondCells, CountSegmentsAndStonesAsOccupants)
{
    StartGame(1);
    PlaceHead(0, 64, 64);
    const auto [x, y] = std::pair(64, 64);
    Cell& cell = pond.cells[CellAt(x, y)];
    EXPECT_FALSE(pond.IsOccupied(x, y)) << "the head alone";
    MakeRipe(cell, RED);
    EXPECT_FALSE(pond.IsOccupied(x, y)) << "a berry does not count";
    MakeStone(cell);
    EXPECT_TRUE(pond.IsOccupied(x, y));
    cell.occupied = false;
    PlaceHead(1, 70, 79);
    EXPECT_TRUE(pond.IsOccupied(x, y)) << "the other snake's head touches the cell";
    pond.players = 0;
    EXPECT_FALSE(pond.IsOccupied(x, y)) << "that snake is not in play";
}
}
