#pragma once

/// Sizes of screen and pond, in pixels. The pond is a square at the right of the screen, the status strip lies left.
constexpr int SCREEN_WIDTH = 640;
constexpr int SCREEN_HEIGHT = 480;
constexpr int POND_SIZE = SCREEN_HEIGHT;
constexpr int POND_LEFT = SCREEN_WIDTH - POND_SIZE; ///< the pond's x on the screen

/// The pond's cells, numbered row by row.
constexpr int CELL_SIZE = 16;
constexpr int CELL_COLUMNS = POND_SIZE / CELL_SIZE;
constexpr int CELL_ROWS = CELL_COLUMNS;
constexpr int CELL_COUNT = CELL_COLUMNS * CELL_ROWS;

/// The cell of a pond pixel; outside 0..CELL_COUNT-1 there is no such cell. Divisions truncate toward zero.
constexpr int CellAt(int x, int y)
{
    return y / CELL_SIZE * CELL_COLUMNS + x / CELL_SIZE;
}
constexpr bool IsCell(int cell)
{
    return cell >= 0 && cell < CELL_COUNT;
}

/// A direction as snake and pond tell it each other, whatever keys steer: the arrow keys' virtual-key codes.
enum Heading : int {
    HEADING_NONE = 0,
    HEADING_LEFT = 37,
    HEADING_UP = 38,
    HEADING_RIGHT = 39,
    HEADING_DOWN = 40,
};

/// The ways to go. A row of every table that depends on one.
enum class Direction : int { NONE = -1, UP = 0, DOWN = 1, LEFT = 2, RIGHT = 3 };

/// What a direction means on the pond.
struct DirectionRow {
    int dx;
    int dy;
    int heading;
    Direction reverse;
};
/// By Direction.
constexpr DirectionRow directions[] = {
    { 0, -1, HEADING_UP, Direction::DOWN },
    { 0, 1, HEADING_DOWN, Direction::UP },
    { -1, 0, HEADING_LEFT, Direction::RIGHT },
    { 1, 0, HEADING_RIGHT, Direction::LEFT },
};
/// `direction` must not be NONE.
constexpr const DirectionRow& RowOf(Direction direction)
{
    return directions[static_cast<int>(direction)];
}

/// NONE for what is no heading.
constexpr Direction DirectionOfHeading(int heading)
{
    for (int i = 0; i < 4; ++i)
        if (directions[i].heading == heading)
            return static_cast<Direction>(i);
    return Direction::NONE;
}

/// Berry colours. Golden berries only arise from lasers.
enum BerryColour : int {
    RED = 0,
    GREEN = 1,
    BLUE = 2,
    ORANGE = 3,
    PURPLE = 4,
    GOLDEN = 5,
};
constexpr int ORDINARY_COLOURS = 5;
/// As an argument: any ordinary colour, any cell.
constexpr int RANDOM = -1;

/// Frames in one second of game time.
constexpr int FRAMES_PER_SECOND = 25;
