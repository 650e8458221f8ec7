#include "actors/snake.h"
#include "game/pond.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace
{
/// The frames of a game at which the first player's snake drops the five blue berries of the start.
constexpr int startBerryFrames[] = { 5, 15, 25, 35, 45 };

bool IsOnGrid(const Segment& segment)
{
    return segment.x % CELL_SIZE == 0 && segment.y % CELL_SIZE == 0;
}

bool IsSamePlace(const Segment& a, const Segment& b)
{
    return a.x == b.x && a.y == b.y;
}

/// The pond's opposite edges meet.
int Wrap(int coordinate)
{
    if (coordinate < 0)
        return coordinate + POND_SIZE;
    return coordinate >= POND_SIZE ? coordinate - POND_SIZE : coordinate;
}
}

bool CSnake::IsHeadOnGrid() const
{
    return IsOnGrid(segments[0]);
}

bool CSnake::IsOnHead(int index) const
{
    return IsSamePlace(segments[index], segments[0]);
}

bool CSnake::IsStacked(int index) const
{
    return index > 0 && IsSamePlace(segments[index], segments[index - 1]);
}

/// Less than a cell behind its predecessor, on one row or column: it waits, and a stack of segments unrolls.
bool CSnake::IsCloseToNext(int index) const
{
    const Segment& segment = segments[index];
    const Segment& next = segments[index - 1];
    return (segment.x == next.x && std::abs(segment.y - next.y) < CELL_SIZE) ||
           (segment.y == next.y && std::abs(segment.x - next.x) < CELL_SIZE);
}

void CSnake::StepSegment(Segment& segment) const
{
    const Direction direction = DirectionOf(segment.dir);
    if (direction == Direction::NONE)
        return;
    const DirectionRow& row = RowOf(direction);
    segment.x = Wrap(segment.x + row.dx * speed);
    segment.y = Wrap(segment.y + row.dy * speed);
}

/// From the tail to the head, so that each segment sees its predecessor where it was a frame ago.
void CSnake::Move()
{
    for (int i = length - 1; i > 0; --i) {
        Segment& segment = segments[i];
        if (!IsCloseToNext(i))
            StepSegment(segment);
        if (IsOnGrid(segment))
            segment.dir = segments[i - 1].dir;
    }
    StepSegment(segments[0]);
}

/// One step of a level's end: the body runs along its own path into the resting head.
void CSnake::Coil()
{
    const int tail = length - 1;
    for (int i = tail; i > 0; --i) {
        if (IsOnHead(i))
            continue;
        if (i == tail && IsCloseToNext(i) && !IsOnHead(i - 1))
            continue;
        StepSegment(segments[i]);
        if (IsOnGrid(segments[i]))
            segments[i].dir = segments[i - 1].dir;
    }
}

/// The frames that the five starting segments take to come onto the pond. Until then nothing wraps around: the snake
/// must not show at the top while it enters from below.
int CSnake::EntryFrames() const
{
    return START_LENGTH * (CELL_SIZE / speed);
}

/// The snake opens its mouth as it has come in, and the first berries fall.
void CSnake::StepEntry()
{
    if (frameCount == EntryFrames() - speed)
        eyeFrame = 1;
    if (frameCount == EntryFrames())
        eyeFrame = 0;
    const auto* end = std::end(startBerryFrames);
    if (player == 1 && std::find(std::begin(startBerryFrames), end, frameCount) != end)
        pond->PlaceBerry(BLUE, RANDOM);
}
