#include "actors/snake.h"
#include "bot.h"

#include <numeric>

// Which berry the bot goes for.

namespace
{
// In cells walked.
constexpr int GOLD_WORTH = 30;
constexpr int STREAK_WORTH = 100;
constexpr int DETOUR = 40;
constexpr int SPARED = 20;

constexpr int FEW_BERRIES = 10;
}

/// Toward an orange berry from the side from which the laser that it sets off will strike a golden one.
int Bot::DirectionToAim(int start) const
{
    int best = NO_DIRECTION;
    int bestDistance = UNREACHED;
    for (int i = 0; i < CELL_COUNT * 4; ++i) {
        const int direction = i % 4;
        const int berry = i / 4;
        if (!pond.cells[berry].IsRipeBerry() || pond.cells[berry].colour != ORANGE || !IsGoldAhead(berry, direction))
            continue;
        const int approach = Neighbour(berry, static_cast<int>(directions[direction].reverse));
        const int walked = distance[static_cast<size_t>(approach)];
        if (walked >= bestDistance)
            continue;
        best = approach == start ? direction : FirstDirectionTo(approach, start);
        bestDistance = walked;
    }
    return best;
}

/// The first thing that a laser from that cell would strike is a golden berry.
bool Bot::IsGoldAhead(int cell, int direction) const
{
    int x = pond.cells[cell].x;
    int y = pond.cells[cell].y;
    while (true) {
        x += directions[direction].dx * CELL_SIZE;
        y += directions[direction].dy * CELL_SIZE;
        if (x < 0 || x >= POND_SIZE || y < 0 || y >= POND_SIZE)
            return false;
        const Cell& next = pond.cells[CellAt(x, y)];
        if (next.occupied)
            return next.IsRipeBerry() && next.colour == GOLDEN;
    }
}

/// Which colour to eat in a row now, for its effect; NO_COLOUR while there is not enough of any.
int Bot::StreakColour(const CSnake& snake) const
{
    const int needed = HasFewBerries() ? 4 : 5;
    if (snake.streak > 0 && snake.lastColour >= 0 && Supply(snake, snake.lastColour) >= needed)
        return snake.lastColour;
    int best = NO_COLOUR;
    int bestWorth = 0;
    for (int colour = 0; colour < ORDINARY_COLOURS; ++colour) {
        const int worth = EffectWorth(snake, colour);
        if (worth > bestWorth && Supply(snake, colour) >= needed) {
            best = colour;
            bestWorth = worth;
        }
    }
    return best;
}

/// In no unit; 0 = not wanted. The more berries, the better everything goes: rain and fading stones bring them.
int Bot::EffectWorth(const CSnake& snake, int colour) const
{
    if (style.firesAtGold && colour != ORANGE && colour != BLUE)
        return 0;
    const bool isSlow = snake.speed != FAST_SPEED && snake.speedUpTimer == 0;
    switch (colour) {
    case RED:
        return isSlow && !HasFewBerries() ? 90 : 0;
    case GREEN:
        return pond.CountStones() >= 5 ? 70 : 0;
    case BLUE:
        return snake.rainTimer > 0 ? 10 : 80;
    case ORANGE:
        if (style.firesAtGold)
            return 100;
        return HasFewBerries() ? 0 : 20;
    default:
        return snake.length > 9 && !HasFewBerries() ? 4 * snake.length : 0;
    }
}

/// The colour that is spared until there is enough of it.
int Bot::SparedColour(const CSnake& snake) const
{
    int best = NO_COLOUR;
    for (int colour = 0; colour < ORDINARY_COLOURS; ++colour) {
        if (EffectWorth(snake, colour) >= 70 && (best == NO_COLOUR || Supply(snake, colour) > Supply(snake, best)))
            best = colour;
    }
    return best;
}

bool Bot::HasFewBerries() const
{
    return std::accumulate(berries.begin(), berries.end(), 0) < FEW_BERRIES;
}

/// What a berry of that colour costs now beside the way to it, in cells walked.
int Bot::BerryCost(const CSnake& snake, int colour) const
{
    const int wanted = StreakColour(snake);
    if (colour == GOLDEN)
        return style.firesAtGold || snake.streak > 2 ? DETOUR : -GOLD_WORTH;
    if (colour == wanted)
        return -STREAK_WORTH;
    if (colour == RED && snake.speed == FAST_SPEED)
        return HasFewBerries() ? DETOUR / 2 : DETOUR;
    return wanted == NO_COLOUR && colour == SparedColour(snake) ? SPARED : 0;
}

/// How many berries of a colour there are for a streak, those eaten for it included.
int Bot::Supply(const CSnake& snake, int colour) const
{
    return berries[static_cast<size_t>(colour)] + (snake.lastColour == colour ? snake.streak : 0);
}
