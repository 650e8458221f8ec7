// Lets the bot play the recorded games anew and writes them, seed, keys and checksums, into a folder:
//   record_games tests/data
// To be run after a wanted change of play. It reports what happens in each game; another seed may be needed for one to
// show again all that the test asks of it.

#include "bot.h"
#include "support/game_watcher.h"
#include "support/recorded_game.h"
#include "support/state_checksum.h"
#include "support/test_game.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace
{
struct GamePlan {
    const char* name;
    int players;
    uint32_t seed;
    BotStyle style;
};
constexpr GamePlan plans[] = {
    { "one_player", 0, 5, { .recklessLevel = 5 } },
    { "two_players", 1, 4, { .recklessFrom = 8000 } },
    { "laser_on_gold", 0, 40, { .firesAtGold = true, .recklessFrom = 6000, .pauseAt = 1000 } },
};
constexpr int MAX_FRAMES = 40000; ///< in case that a bot does not come to an end

void Report(const GamePlan& plan, const RecordedGame& recording, const GameWatcher& watcher, const CPond& pond)
{
    std::printf("%s: seed %u, %d frames, %zu keys, %zu levels, score %d + %d\n", plan.name, plan.seed, recording.frames,
                recording.keys.size(), watcher.Targets().size(), pond.snake[0].score, pond.snake[1].score);
    for (int i = 0; i < GAME_EVENTS; ++i)
        std::printf("  %s %d", EventName(static_cast<GameEvent>(i)), watcher.Count(static_cast<GameEvent>(i)));
    std::printf("\n");
}

RecordedGame Record(const GamePlan& plan)
{
    const auto game = std::make_unique<TestGame>(plan.players, plan.seed);
    Bot bot(game->pond, plan.style);
    GameWatcher watcher;
    RecordedGame recording;
    recording.players = plan.players;
    recording.seed = plan.seed;
    while (!game->pond.gameOver && recording.frames < MAX_FRAMES) {
        const int key = bot.NextKey(recording.frames);
        if (key != 0)
            recording.keys.push_back({ recording.frames, key });
        game->Frame(key);
        watcher.Look(game->pond);
        ++recording.frames;
        if (recording.frames % RecordedGame::STRETCH == 0)
            recording.checksums.push_back(StateChecksum(game->pond));
    }
    Report(plan, recording, watcher, game->pond);
    return recording;
}
}

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: record_games FOLDER\n");
        return 2;
    }
    const std::filesystem::path folder = std::filesystem::absolute(argv[1]);
    for (const GamePlan& plan : plans)
        WriteRecordedGame(Record(plan), (folder / (std::string(plan.name) + ".txt")).string());
    return 0;
}
