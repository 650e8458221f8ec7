#include "actors/snake.h"
#include "game/pond.h"

#include <algorithm>
#include <iterator>

Direction CSnake::DirectionOf(int key) const
{
    const int32_t keys[] = { keyUp, keyDown, keyLeft, keyRight };
    const int32_t* place = std::find(std::begin(keys), std::end(keys), key);
    return place == std::end(keys) ? Direction::NONE : static_cast<Direction>(place - keys);
}

int CSnake::Heading() const
{
    const Direction direction = DirectionOf(segments[0].dir);
    return direction == Direction::NONE ? HEADING_NONE : RowOf(direction).heading;
}

/// `key` must be one of the player's.
bool CSnake::IsReverse(int key, int otherKey) const
{
    return RowOf(DirectionOf(key)).reverse == DirectionOf(otherKey);
}

bool CSnake::AcceptsKey(int key) const
{
    if (DirectionOf(key) == Direction::NONE)
        return false;
    if (turnCount == 0)
        return isWaiting || !IsReverse(key, segments[0].dir);
    const int lastQueued = turnQueue[turnCount - 1];
    return turnCount < TURN_QUEUE && key != lastQueued && !IsReverse(key, lastQueued);
}

void CSnake::TakeKey(int key)
{
    if (AcceptsKey(key))
        turnQueue[turnCount++] = key;
}

void CSnake::MakeWake()
{
    if (isWaiting)
        return;
    const Segment& head = segments[0];
    const bool isTurning = turnCount > 0 && head.x % 2 == 0 && head.y % 2 == 0;
    if (speed == FAST_SPEED || isTurning)
        Splash(head);
}

/// Takes the oldest queued turn on a grid point. A waiting snake only looks round; the key of the direction in which
/// it looks is its start key.
void CSnake::TurnHead()
{
    if (turnCount == 0 || !IsHeadOnGrid())
        return;
    Segment& head = segments[0];
    if (isWaiting && head.dir == turnQueue[0]) {
        Splash(head);
        startPressed = true;
        for (int i = 1; i < length; ++i)
            segments[i].dir = head.dir;
    }
    head.dir = turnQueue[0];
    std::copy(turnQueue + 1, turnQueue + turnCount, turnQueue);
    --turnCount;
}

void CSnake::SnakeReleaseStart()
{
    if (!startPressed || !pond->snake[0].IsHeadOnGrid() || !pond->snake[1].IsHeadOnGrid())
        return;
    startPressed = false;
    isWaiting = false;
}
