#include "support/game_watcher.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr const char* eventNames[] = {
    "speed-up", "laser", "rain",    "fade",       "shrink", "golden made", "golden eaten", "shock wave",
    "freeze",   "death", "respawn", "extra life", "night",  "pause",       "game over",
};
static_assert(std::size(eventNames) == GAME_EVENTS);

constexpr int GOLDEN_POINTS = 35; ///< at least
}

const char* EventName(GameEvent event)
{
    return eventNames[static_cast<int>(event)];
}

GameWatcher::View GameWatcher::See(const CPond& pond)
{
    View view{};
    for (int i = 0; i <= pond.players; ++i) {
        const CSnake& s = pond.snake[i];
        view.snake[i] = { s.speed, s.rainTimer, s.shrinkCount, s.lives, s.score, s.length, s.isDying };
    }
    view.lasers = static_cast<int>(std::ranges::count_if(pond.lasers, &Laser::active));
    view.goldens = pond.CountBerries(GOLDEN);
    view.stones = pond.CountStones();
    view.shockwave = pond.shockwave.radius < pond.shockwave.maxRadius;
    view.isDay = pond.isDay;
    view.isPaused = pond.snake[0].isPaused;
    view.gameOver = pond.gameOver;
    return view;
}

void GameWatcher::CompareSnake(const SnakeView& before, const SnakeView& now)
{
    Happened(GameEvent::SPEED_UP, now.speed == 4 && before.speed == 2);
    Happened(GameEvent::RAIN, now.rainTimer > before.rainTimer);
    Happened(GameEvent::SHRINK, now.shrinkCount > before.shrinkCount);
    Happened(GameEvent::GOLDEN_EATEN, now.score >= before.score + GOLDEN_POINTS);
    Happened(GameEvent::FREEZE, before.length == MAX_SEGMENTS && now.length <= 6);
    Happened(GameEvent::DEATH, now.isDying && !before.isDying);
    Happened(GameEvent::RESPAWN, now.lives < before.lives);
    Happened(GameEvent::EXTRA_LIFE, now.lives > before.lives);
}

void GameWatcher::Look(const CPond& pond)
{
    const View now = See(pond);
    if (pond.introFrames > 1) { // the first frame has nothing before it
        CompareSnake(last.snake[0], now.snake[0]);
        CompareSnake(last.snake[1], now.snake[1]);
        Happened(GameEvent::LASER, now.lasers > last.lasers);
        Happened(GameEvent::GOLDEN_MADE, now.goldens > last.goldens);
        Happened(GameEvent::FADE, now.stones <= last.stones - 2 && now.goldens == last.goldens && !now.shockwave);
        Happened(GameEvent::SHOCKWAVE, now.shockwave && !last.shockwave);
        Happened(GameEvent::NIGHT, !now.isDay && last.isDay);
        Happened(GameEvent::PAUSE, now.isPaused && !last.isPaused);
        Happened(GameEvent::GAME_OVER, now.gameOver && !last.gameOver);
    }
    if (targets.empty() || targets.back() != pond.statusBar.target)
        targets.push_back(pond.statusBar.target);
    last = now;
}
