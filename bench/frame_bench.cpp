// Whole frames of play in several situations, composed only and also presented, and loading all there is. Names are
// Frame/SITUATION/composed or presented, and Load/all.
#include "app/frame_images.h"
#include "app/game.h"
#include "app/game_window.h"
#include "app/random.h"
#include "app/section_load.h"
#include "game/section_main.h"
#include "gfx/display.h"
#include "menu/section_menu.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>

namespace
{
constexpr int INTRO_OVER = 31;
constexpr int RAIN_FALLING = 200; ///< frames of rain left
constexpr int FULL_LENGTH = 24;   ///< segments; the next one would turn to stone
constexpr int UNROLL_FRAMES = 400;
constexpr int HALF_GROWN = 14;
constexpr int FALLING_BERRIES = 10;

struct Situation {
    const char* name;
    int players; ///< 0 one, 1 two
    bool isDay;
    bool rains;
    bool isFull; ///< full-grown snakes, and a berry or stone on every cell but in their way
};
constexpr Situation situations[] = {
    { "by day", 0, true, false, false },          { "by night", 0, false, false, false },
    { "in rain", 0, true, true, false },          { "two players", 1, true, false, false },
    { "full pond by day", 0, true, false, true }, { "full pond, two players, night, rain", 1, false, true, true },
};

bool IsInTheWay(const CPond& pond, const Cell& cell)
{
    const auto startsThere = [&cell](const CSnake& snake) { return snake.startX == cell.x; };
    return std::any_of(std::begin(pond.snake), std::end(pond.snake), startsThere);
}

void FillPond(CPond& pond)
{
    for (int i = 0; i < CELL_COUNT; ++i) {
        Cell& cell = pond.cells[i];
        if (IsInTheWay(pond, cell))
            continue;
        cell.occupied = true;
        cell.ripe = i % 2 == 0;
        cell.colour = i / 2 % ORDINARY_COLOURS;
        cell.splashed = true;
    }
}

/// What a frame would change for good is set anew before each.
void HoldSituation(CPond& pond, const Situation& situation)
{
    pond.isDay = situation.isDay;
    pond.dayTimer = 1;
    scenery.moonY = POND_SIZE / 2;
    for (CSnake& snake : pond.snake)
        snake.rainTimer = situation.rains ? RAIN_FALLING : 0;
    if (!situation.isFull)
        return;
    int falling = 0;
    for (Cell& cell : pond.cells) {
        if (falling == FALLING_BERRIES || IsInTheWay(pond, cell))
            continue;
        cell.ripe = false;
        cell.growth = HALF_GROWN;
        ++falling;
    }
}

void PlayFrame(CPond& pond, const Situation& situation)
{
    HoldSituation(pond, situation);
    pond.GameFrame(pondImage, 0);
}

/// A game in which the snakes have been swimming upwards, across the edge, for a while.
void StartGame(CPond& pond, const Situation& situation)
{
    sectionMenu.twoPlayers = situation.players;
    SeedRandom(1);
    sectionMain.SectionBegin();
    pond.introFrames = INTRO_OVER;
    for (CSnake& snake : pond.snake) {
        if (!situation.isFull || snake.isOut)
            continue;
        std::fill(std::begin(snake.segments), std::end(snake.segments), snake.segments[0]);
        snake.length = FULL_LENGTH;
    }
    if (situation.isFull)
        FillPond(pond);
    for (int frame = 0; frame < UNROLL_FRAMES; ++frame)
        PlayFrame(pond, situation);
}

void TimeFrames(benchmark::State& state, const Situation& situation, bool isPresented)
{
    CPond& pond = sectionMain.pond;
    StartGame(pond, situation);
    for (auto _ : state) {
        PlayFrame(pond, situation);
        if (isPresented)
            DisplayPresent(backBuffer);
    }
    if (pond.gameOver || pond.fadeOut != 0)
        state.SkipWithError("the game ended");
    sectionMain.SectionEnd();
}

/// From nothing to all pictures decoded and all sounds read, as at the program's start; can be done once.
double LoadEverything()
{
    const auto start = std::chrono::steady_clock::now();
    sectionLoad.SectionBegin();
    while (!statusBarLoaded && sectionLoad.SectionProcess()) {
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void AddSituation(const Situation& situation)
{
    const std::string name = std::string("Frame/") + situation.name;
    for (const bool isPresented : { false, true })
        benchmark::RegisterBenchmark(
            (name + (isPresented ? "/presented" : "/composed")).c_str(),
            [&situation, isPresented](benchmark::State& state) { TimeFrames(state, situation, isPresented); })
            ->Unit(benchmark::kMicrosecond);
}
}

int main(int argc, char** argv)
{
    setenv("SDL_VIDEODRIVER", "dummy", 0);
    setenv("SDL_AUDIODRIVER", "dummy", 0);
    setenv("XDG_CONFIG_HOME", "/dev/null", 1);                     // neither read nor change the player's settings
    std::snprintf(game.name, sizeof(game.name), "Tervalis bench"); // may run beside the game
    if (!CreateGameWindow(nullptr))
        return 1;
    const double loadSeconds = LoadEverything();
    if (!statusBarLoaded)
        return 1;
    benchmark::RegisterBenchmark("Load/all",
                                 [loadSeconds](benchmark::State& state) {
                                     for (auto _ : state)
                                         state.SetIterationTime(loadSeconds);
                                 })
        ->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMicrosecond);
    for (const Situation& situation : situations)
        AddSituation(situation);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    DestroyWindow(gameWindow);
    return 0;
}
