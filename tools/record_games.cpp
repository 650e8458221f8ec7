// Plays the recorded games anew with the bot and writes them, seed, keys and checksums, into a folder:
//   record_games tests/data
// To be run after a wanted change of play. With --keep-keys the recorded keys are replayed and only the checksums
// are written anew.

#include "support/bot.h"
#include "support/game_watcher.h"
#include "support/recorded_game.h"
#include "support/state_checksum.h"
#include "support/test_game.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>

namespace
{
struct GamePlan {
    const char* name;
    int players;
    uint32_t seed;
    int maxFrames;
    BotStyle style;
};
constexpr GamePlan plans[] = {
    { "one_player", 0, 1, 20000, { .recklessFrom = 15000, .pauseAt = 1000 } },
    { "two_players", 1, 1, 20000, { .recklessFrom = 12000 } },
    { "gold_spared", 0, 2, 20000, { .sparesGold = true, .recklessFrom = 8000 } },
};

void Report(const GamePlan& plan, const RecordedGame& recording, const GameWatcher& watcher, const CPond& pond)
{
    std::printf("%s: seed %u, %d frames, %zu keys, level %d, score %d + %d\n", plan.name, plan.seed, recording.frames,
                recording.keys.size(), watcher.Level(), pond.snake[0].score, pond.snake[1].score);
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
    while (!game->pond.gameOver && recording.frames < plan.maxFrames) {
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
