#include "snake_fixture.h"

#include <algorithm>
#include <string>
#include <vector>

namespace
{
using SnakeMovement = SnakeFixture;

std::vector<int> Rows(const CSnake& snake)
{
    std::vector<int> rows;
    for (int i = 0; i < snake.length; ++i)
        rows.push_back(snake.segments[i].y);
    return rows;
}

TEST_F(SnakeMovement, UnrollsFromBelowTheBottomEdge)
{
    int cells[CELL_COUNT] = {};
    Snake().SnakeCountCells(cells);
    EXPECT_EQ(std::ranges::count(cells, 1), 0) << "not on the pond yet";
    Frames(12);
    EXPECT_EQ(Rows(Snake()), (std::vector{ 456, 472, 480, 480, 480 }));
    Frames(28);
    EXPECT_EQ(Rows(Snake()), (std::vector{ 400, 416, 432, 448, 464 }));
}

TEST_F(SnakeMovement, ATurnInTheFirstFrameStaysOnThePond)
{
    Frame(LEFT);
    EXPECT_TRUE(IsCell(CellAt(Head().x, Head().y)));
    Frames(100);
    for (int i = 1; i < Snake().length; ++i)
        EXPECT_EQ(Snake().segments[i].x, Head().x + CELL_SIZE * i);
}

struct EdgeCase {
    const char* name;
    int heading;
    int x, y;
    int afterX, afterY; ///< eight frames later
};
class SnakeEdges : public SnakeFixture, public testing::WithParamInterface<EdgeCase>
{
};

TEST_P(SnakeEdges, WrapAround)
{
    PutSnake(GetParam().x, GetParam().y, 1);
    Head().dir = GetParam().heading;
    Frames(8);
    EXPECT_EQ(Head().x, GetParam().afterX);
    EXPECT_EQ(Head().y, GetParam().afterY);
}

INSTANTIATE_TEST_SUITE_P(Movement, SnakeEdges,
                         testing::Values(EdgeCase{ "Top", UP, 240, 0, 240, 464 },
                                         EdgeCase{ "Bottom", DOWN, 240, 464, 240, 0 },
                                         EdgeCase{ "Left", LEFT, 0, 240, 464, 240 },
                                         EdgeCase{ "Right", RIGHT, 464, 240, 0, 240 }),
                         [](const auto& test) { return std::string(test.param.name); });

struct CoilCase {
    int length;
    int frames; ///< from the level's end until the body has run into the head
};
class SnakeCoil : public SnakeFixture, public testing::WithParamInterface<CoilCase>
{
};

TEST_P(SnakeCoil, RunsRoundItsCornersIntoTheHead)
{
    const int length = GetParam().length;
    PutSnake(240, 240, length);
    Frame(LEFT);
    Frames(7);
    Frame(UP);
    Frames(4); // six frames' way, 12 pixels, to the next grid point
    Snake().SnakeGather();
    const auto isCoiled = [this, length] {
        return std::all_of(Snake().segments, Snake().segments + length,
                           [this](const Segment& s) { return s.x == 224 && s.y == 224; });
    };
    Frames(GetParam().frames - 1);
    EXPECT_FALSE(isCoiled());
    Frame();
    EXPECT_TRUE(isCoiled());
    Frames(10);
    EXPECT_TRUE(isCoiled());

    Snake().SnakeRestart();
    EXPECT_TRUE(Snake().isWaiting);
    EXPECT_EQ(Snake().length, 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Snake().segments[i].y, 224) << "segment " << i;
}

// Three frames to the grid point, then eight for each segment behind the head.
INSTANTIATE_TEST_SUITE_P(Movement, SnakeCoil,
                         testing::Values(CoilCase{ 3, 19 }, CoilCase{ 5, 35 }, CoilCase{ 24, 187 }));

TEST_F(SnakeMovement, OfAStackOnlyTheTailWaitsToCoil)
{
    PutSnake(240, 240);
    for (int i = 1; i < 5; ++i)
        Snake().segments[i].y = 256;
    Snake().SnakeGather();
    Frames(8);
    EXPECT_EQ(Rows(Snake()), (std::vector{ 240, 240, 240, 240, 256 }));
    Frames(8);
    EXPECT_EQ(Rows(Snake()), (std::vector(5, 240)));
}

TEST_F(SnakeMovement, KeepsBerriesSixCellsAway)
{
    PutSnake(240, 240); // column 15, row 15
    const auto isFar = [this](int column, int row) { return Snake().SnakeIsFarFrom(row * CELL_COLUMNS + column); };
    EXPECT_FALSE(isFar(21, 9));
    EXPECT_TRUE(isFar(22, 15));
    EXPECT_TRUE(isFar(15, 8));
    Head().y = POND_SIZE;
    EXPECT_TRUE(isFar(15, 29)) << "a head off the pond is far from everything";
}
}
