#include "support/game_watcher.h"
#include "support/recorded_game.h"
#include "support/state_checksum.h"
#include "support/test_game.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace
{
/// A game that tools/record_games has recorded, and what it is there to show.
struct GameCase {
    const char* name;
    size_t levels; ///< reached, at least
    std::vector<GameEvent> events;
};

using enum GameEvent;
const GameCase games[] = {
    { "one_player",
      5,
      { SPEED_UP, LASER, RAIN, FADE, SHRINK, GOLDEN_MADE, GOLDEN_EATEN, FREEZE, DEATH, RESPAWN, EXTRA_LIFE, NIGHT,
        GAME_OVER } },
    { "two_players",
      3,
      { SPEED_UP, LASER, RAIN, FADE, SHRINK, GOLDEN_MADE, GOLDEN_EATEN, FREEZE, DEATH, RESPAWN, NIGHT, GAME_OVER } },
    { "laser_on_gold", 2, { SHOCKWAVE, PAUSE, GAME_OVER } },
};

class RecordedGames : public testing::TestWithParam<GameCase>
{
};

TEST_P(RecordedGames, PlayAsTheyDid)
{
    const RecordedGame recording = ReadRecordedGame(std::string(TEST_DATA_DIR "/") + GetParam().name + ".txt");
    const auto game = std::make_unique<TestGame>(recording.players, recording.seed);
    GameWatcher watcher;
    auto press = recording.keys.begin();
    auto expected = recording.checksums.begin();
    for (int frame = 0; frame < recording.frames; ++frame) {
        const bool isPressed = press != recording.keys.end() && press->frame == frame;
        game->Frame(isPressed ? (press++)->key : 0);
        watcher.Look(game->pond);
        if ((frame + 1) % RecordedGame::STRETCH != 0)
            continue;
        ASSERT_NE(expected, recording.checksums.end());
        ASSERT_EQ(StateChecksum(game->pond), *expected++)
            << "first difference in the " << RecordedGame::STRETCH << " frames up to " << frame;
    }
    EXPECT_EQ(expected, recording.checksums.end());
    EXPECT_GT(recording.frames, 5000);
    EXPECT_GE(watcher.Targets().size(), GetParam().levels);
    constexpr int firstTargets[] = { 500, 1500, 3000, 5000, 7500 };
    for (size_t i = 0; i < watcher.Targets().size(); ++i)
        EXPECT_EQ(watcher.Targets()[i], firstTargets[i]);
    for (const GameEvent event : GetParam().events)
        EXPECT_GT(watcher.Count(event), 0) << EventName(event);
}

INSTANTIATE_TEST_SUITE_P(All, RecordedGames, testing::ValuesIn(games),
                         [](const auto& test) { return std::string(test.param.name); });
}
