#pragma once

#include "game/pond.h"

#include <array>
#include <vector>

/// What a recorded game is expected to show.
enum class GameEvent : int {
    SPEED_UP,
    LASER,
    RAIN,
    FADE,
    SHRINK,
    GOLDEN_MADE,
    GOLDEN_EATEN,
    SHOCKWAVE,
    FREEZE,
    DEATH,
    RESPAWN,
    EXTRA_LIFE,
    NIGHT,
    PAUSE,
    GAME_OVER,
    COUNT
};
constexpr int GAME_EVENTS = static_cast<int>(GameEvent::COUNT);

const char* EventName(GameEvent event);

/// Counts what happens in a game by comparing its state from frame to frame.
class GameWatcher
{
public:
    /// To be called after each frame.
    void Look(const CPond& pond);

    int Count(GameEvent event) const { return counts[static_cast<size_t>(event)]; }
    const std::vector<int>& Targets() const { return targets; } ///< of the levels, in order

private:
    struct SnakeView {
        int speed, rainTimer, shrinkCount, lives, score, length;
        bool isDying;
    };
    struct View {
        SnakeView snake[2];
        int lasers, goldens, stones;
        bool shockwave, isDay, isPaused, gameOver;
    };

    static View See(const CPond& pond);
    void Happened(GameEvent event, bool did) { counts[static_cast<size_t>(event)] += did; }
    void CompareSnake(const SnakeView& before, const SnakeView& now);

    std::array<int, GAME_EVENTS> counts{};
    std::vector<int> targets;
    View last{};
};
