#pragma once

#include "game/pond.h"

#include <array>

constexpr int NO_DIRECTION = -1; ///< else a row of `directions`

/// The cell beside, across the pond's edge too.
int Neighbour(int cell, int direction);
bool HasBerry(const Cell& cell);

/// How the bot plays.
struct BotStyle {
    bool firesAtGold = false;    ///< collects orange berries for lasers, and leaves the golden ones for them to strike
    int recklessFrom = 1 << 30;  ///< frame from which it turns in circles until the game is over
    int recklessLevel = 1 << 30; ///< the same, from that level on
    int pauseAt = -100;          ///< frame in which it pauses the game for a second
};

/// Plays all snakes of a game, to make recordings with: it steers for berries by the shortest way round bodies and
/// stones. It only looks at the game; what it answers are keys.
class Bot
{
public:
    Bot(const CPond& playedPond, const BotStyle& playStyle) : pond(playedPond), style(playStyle) {}

    /// The key for the coming frame, 0 for none.
    int NextKey(int frame);

private:
    static constexpr int UNREACHED = 1 << 20;
    using CellNumbers = std::array<int, CELL_COUNT>;

    int KeyFor(int player, int frame);
    int WantedDirection(int player);
    void Survey(int player);
    void MarkBody(const CSnake& snake, int margin);
    void SearchFrom(int start, int forbiddenCell);
    int BestTarget(const CSnake& snake, int start) const;
    int BerryCost(const CSnake& snake, int colour) const;
    int StreakColour(const CSnake& snake) const;
    int EffectWorth(const CSnake& snake, int colour) const;
    int SparedColour(const CSnake& snake) const;
    bool HasFewBerries() const;
    int Supply(const CSnake& snake, int colour) const;
    int FirstDirectionTo(int target, int start) const;
    int RoomiestDirection(int start, int forbiddenCell) const;
    int DirectionToAim(int start) const;
    bool IsGoldAhead(int cell, int direction) const;
    int RoomBeyond(int end, int start) const;
    int Room(int start, std::array<bool, CELL_COUNT> taken) const;

    const CPond& pond;
    BotStyle style;
    int roomNeeded = 0;                    ///< free cells that a way must lead to
    std::array<int, GOLDEN + 1> berries{}; ///< of each colour
    CellNumbers freeFrom{};                ///< cells walked after which a cell is free; UNREACHED = never
    CellNumbers distance{};
    CellNumbers cameFrom{};
};
