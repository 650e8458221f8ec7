#include "actors/snake.h"
#include "actors/snake_rules.h"
#include "game/geometry.h"
#include "game/pond.h"

#include <algorithm>
#include <iterator>

namespace
{
/// The frames of a game at which the first player's snake drops the five blue berries of the start.
constexpr int startBerryFrames[] = { 5, 15, 25, 35, 45 };
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
