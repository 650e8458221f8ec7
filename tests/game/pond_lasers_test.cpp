#include "support/test_game.h"

namespace
{
using PondLasers = PondTest;

struct RingCase {
    int column, row;
    bool struck;
};

TEST_F(PondLasers, SendARingThatClearsTheCellsUnderItsEightPoints)
{
    constexpr RingCase cases[] = {
        { 15, 11, true },  { 15, 10, false }, { 15, 19, true },  { 15, 20, false }, { 11, 15, true },
        { 10, 15, false }, { 19, 15, true },  { 20, 15, false }, { 18, 12, true },  { 19, 11, false },
        { 18, 18, true },  { 12, 18, true },  { 12, 12, true },  { 16, 13, false }, { 13, 16, false },
    };
    for (const RingCase& given : cases)
        pond.TurnToStone(given.column * CELL_SIZE, given.row * CELL_SIZE);
    pond.PlaceBerry(RED, 13 * CELL_COLUMNS + 15);
    MakeRipe(CellIn(15, 15), GOLDEN);
    pond.FireLaser(14 * CELL_SIZE, 15 * CELL_SIZE, HEADING_RIGHT);
    Play(22);
    EXPECT_LT(pond.shockwave.radius, pond.shockwave.maxRadius);
    Play(1);
    EXPECT_GE(pond.shockwave.radius, pond.shockwave.maxRadius);
    for (const RingCase& given : cases)
        EXPECT_EQ(CellIn(given.column, given.row).occupied, !given.struck) << given.column << ", " << given.row;
    EXPECT_TRUE(CellIn(15, 13).occupied) << "growing berries are spared";
}
}
