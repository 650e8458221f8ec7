#include "game/pond.h"

#include "app/random.h"
#include "game/water.h"
#include "sound/sound.h"

#include <algorithm>
#include <functional>

namespace
{
/// A cell beside the head that the snake looks at, and the eye frame for it.
struct EyeTest {
    int columns; ///< away from the head
    int rows;
    int eyeFrame; ///< 3 and 2 look at the snake's own left side and left-front, 5 and 4 at its right side
};

// By Direction; the first berry counts. Heading down looks at its right side first, which decides the expression with a
// berry on either side. Kept: part of how the game looks.
constexpr EyeTest eyeTable[][4] = {
    { { -1, 0, 3 }, { -1, -1, 2 }, { 1, 0, 5 }, { 1, -1, 4 } },
    { { -1, 0, 5 }, { -1, 1, 4 }, { 1, 0, 3 }, { 1, 1, 2 } },
    { { 0, 1, 3 }, { -1, 1, 2 }, { 0, -1, 5 }, { -1, -1, 4 } },
    { { 0, -1, 3 }, { 1, -1, 2 }, { 0, 1, 5 }, { 1, 1, 4 } },
};

constexpr int EYE_FRAME_EATING = 1;
}

void CPond::PlaceBerry(int colour, int cell)
{
    if (colour == RANDOM)
        colour = Random() % ORDINARY_COLOURS;
    if (cell == RANDOM)
        cell = Random() % CELL_COUNT;
    cell = FindBerryCell(IsCell(cell) ? cell : 0);

    Cell& chosen = cells[cell];
    chosen.occupied = true;
    chosen.colour = colour;
    chosen.ripe = false;
    chosen.growth = GROWTH_START;
    chosen.splashed = false;
    RecordHighlight(cell);
}

/// The picture of a falling berry changes every two frames; with the last one it has landed.
void CPond::GrowBerries()
{
    for (Cell& cell : cells) {
        if (!cell.IsFalling())
            continue;
        if (cell.growth / 2 == 1) {
            cell.growth = 0;
            cell.ripe = true;
        } else {
            --cell.growth;
        }
    }
}

/// Every ripe berry once, in the first frame after it has landed or was made from a stone.
void CPond::SplashLandedBerries()
{
    for (Cell& cell : cells) {
        if (!cell.IsRipeBerry() || cell.splashed)
            continue;
        cell.splashed = true;
        SplashCell(cell.x, cell.y, BERRY_SPLASH);
        // Its place is kept: a drop that still sounds goes on, an ended one starts from the front.
        SoundStop(SOUND_DROP);
        SoundPlay(SOUND_DROP, false);
    }
}

/// The first cell from `start` on, wrapping around, that is empty and far from every head; `start` if there is none.
int CPond::FindBerryCell(int start)
{
    const CountGrid snakes = CountSnakes();
    for (int i = 0; i < CELL_COUNT; ++i) {
        const int cell = (start + i) % CELL_COUNT;
        if (!cells[cell].occupied && snakes[cell] == 0 && IsFarFromHeads(cell))
            return cell;
    }
    return start;
}

bool CPond::IsFarFromHeads(int cell)
{
    const std::span<CSnake> snakes = SnakesInPlay();
    return std::all_of(snakes.begin(), snakes.end(), [cell](const CSnake& each) { return each.SnakeIsFarFrom(cell); });
}

CPond::CountGrid CPond::CountSnakes()
{
    CountGrid grid{};
    for (const CSnake& each : SnakesInPlay())
        each.SnakeCountCells(grid.data());
    return grid;
}

/// The first berries of a game blink until one that is not blue is eaten.
void CPond::RecordHighlight(int cell)
{
    if (highlightNext < 0)
        return;
    highlight[highlightNext] = cell;
    ++highlightNext;
    if (highlightNext == HIGHLIGHTS)
        highlightNext = -1;
}

/// The berry in that cell is eaten: a highlighted blue one ends its own highlight, any other one all of them.
void CPond::ClearHighlight(int cell)
{
    int32_t* slot = std::find(std::begin(highlight), std::end(highlight), cell);
    if (cells[cell].colour == BLUE && slot != std::end(highlight))
        *slot = -1;
    else
        std::fill(std::begin(highlight), std::end(highlight), -1);
}

bool CPond::EatAt(int x, int y, int& colour, int heading, int& eyeFrame)
{
    const int cell = CellAt(x, y);
    eyeFrame = 0;
    if (!IsCell(cell))
        return false;
    if (!cells[cell].IsRipeBerry()) {
        eyeFrame = EyeFrameBeside(cell, heading);
        return false;
    }
    ClearHighlight(cell);
    eyeFrame = EYE_FRAME_EATING;
    cells[cell].occupied = false;
    colour = cells[cell].colour;
    PlaceBerry(RANDOM, RANDOM);
    SoundPlay(SOUND_EAT, false);
    return true;
}

int CPond::EyeFrameBeside(int cell, int heading) const
{
    const Direction direction = DirectionOfHeading(heading);
    if (direction == Direction::NONE)
        return 0;
    for (const EyeTest& test : eyeTable[static_cast<int>(direction)])
        if (HasRipeBerry(cell % CELL_COLUMNS + test.columns, cell / CELL_COLUMNS + test.rows))
            return test.eyeFrame;
    return 0;
}

/// False off the pond: a snake does not look around its edges.
bool CPond::HasRipeBerry(int column, int row) const
{
    if (column < 0 || column >= CELL_COLUMNS || row < 0 || row >= CELL_ROWS)
        return false;
    return cells[row * CELL_COLUMNS + column].IsRipeBerry();
}

void CPond::TurnToStone(int x, int y)
{
    const int cell = CellAt(x, y);
    if (!IsCell(cell))
        return;
    int newest = 0;
    for (const Cell& each : cells)
        if (each.occupied && !each.ripe)
            newest = std::max(newest, each.age);
    cells[cell].occupied = true;
    cells[cell].ripe = false;
    cells[cell].age = newest + 1;
    cells[cell].growth = 0;
}

bool CPond::IsOccupied(int x, int y)
{
    const int cell = CellAt(x, y);
    if (!IsCell(cell))
        return false;
    const CountGrid snakes = CountSnakes();
    return snakes[cell] + (cells[cell].IsStone() ? 1 : 0) > 1;
}

void CPond::FadeStones(int count)
{
    for (int i = 0; i < count; ++i) {
        Cell* oldest = nullptr;
        for (Cell& each : cells)
            if (each.IsStone() && (!oldest || each.age < oldest->age))
                oldest = &each;
        if (!oldest)
            return;
        oldest->colour = Random() % ORDINARY_COLOURS;
        oldest->ripe = true;
        oldest->splashed = false;
    }
}

int CPond::CountBerries(int colour) const
{
    const auto isOne = [colour](const Cell& each) { return each.IsRipeBerry() && each.colour == colour; };
    return static_cast<int>(std::count_if(std::begin(cells), std::end(cells), isOne));
}

int CPond::CountStones() const
{
    return static_cast<int>(std::count_if(std::begin(cells), std::end(cells), std::mem_fn(&Cell::IsStone)));
}
