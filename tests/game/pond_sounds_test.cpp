#include "game/pond_fixture.h"
#include "sound/sound.h"
#include "sound/wave_bytes.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace
{
constexpr int GRID_X = 240;
constexpr int GRID_Y = 32;

/// Two snakes, one of which does what makes a sound.
class PondSounds : public PondTest
{
protected:
    void SetUp() override
    {
        PondTest::SetUp();
        SoundInit(nullptr);
        const WAVEFORMATEX format = { 1, 1, 22050, 44100, 2, 16, 0 };
        for (int id = SOUND_POND_FIRST; id <= SOUND_POND_LAST; ++id)
            ASSERT_TRUE(SoundCreate(id, &format, 64));
    }
    void TearDown() override { SoundRelease(); }

    void Begin(int player)
    {
        StartGame(1);
        SeedRandom(1); // no ambience in the next frame
        snake = &pond.snake[player - 1];
        Heard();
    }

    /// What has happened to each sound since the last call: id, + started, * started in a loop, - stopped. The
    /// player's own rain and heartbeat have names.
    std::set<std::string> Heard()
    {
        std::set<std::string> heard;
        for (int id = SOUND_POND_FIRST; id <= SOUND_POND_LAST; ++id) {
            SoundBufferDouble& sound = *directX.buffers[static_cast<size_t>(id - SOUND_POND_FIRST)];
            const std::string starts(static_cast<size_t>(sound.plays), sound.looping ? '*' : '+');
            const std::string stops(static_cast<size_t>(sound.stops), '-');
            if (!starts.empty() || !stops.empty())
                heard.insert(NameOf(id) + (sound.playing ? stops + starts : starts + stops));
            sound.plays = sound.stops = 0;
            sound.playing = false;
        }
        return heard;
    }

public: // for the rows of the table
    /// The head comes onto the grid point with the next frame.
    void Approach(int length)
    {
        snake->isWaiting = false;
        snake->movedFrames = 100;
        snake->length = length;
        for (int i = 0; i < length; ++i)
            snake->segments[i] = { GRID_X, GRID_Y + snake->speed + i * CELL_SIZE, snake->keyUp };
    }
    void ApproachBerry(int colour, int length, int streak)
    {
        Approach(length);
        MakeRipe(pond.cells[CellAt(GRID_X, GRID_Y)], colour);
        snake->lastColour = colour;
        snake->streak = streak;
    }
    void Die(int deathFrames)
    {
        snake->isDying = true;
        snake->deathFrames = deathFrames;
    }
    void FireAtStone()
    {
        pond.TurnToStone(GRID_X, GRID_Y);
        pond.FireLaser(GRID_X - CELL_SIZE, GRID_Y, HEADING_RIGHT);
    }

    using PondTest::pond;
    CSnake* snake = nullptr;

private:
    std::string NameOf(int id) const
    {
        const bool isFirst = snake == &pond.snake[0];
        if (id == (isFirst ? SOUND_BEAT_1 : SOUND_BEAT_2))
            return "beat";
        return id == (isFirst ? SOUND_RAIN_1 : SOUND_RAIN_2) ? "rain" : std::to_string(id);
    }
};

struct SoundCase {
    const char* when;
    void (*prepare)(PondSounds& t);
    std::set<std::string> heard; ///< in the next frame
};

const SoundCase soundCases[] = {
    { "nothing happens", [](PondSounds& t) { t.Approach(5); }, {} },
    { "a berry lands", [](PondSounds& t) { t.pond.cells[400] = { .occupied = true, .ripe = true }; }, { "9-+" } },
    { "a berry is eaten", [](PondSounds& t) { t.ApproachBerry(RED, 5, 1); }, { "10+" } },
    { "a fifth red one", [](PondSounds& t) { t.ApproachBerry(RED, 5, 4); }, { "10+", "14+" } },
    { "a fifth green one", [](PondSounds& t) { t.ApproachBerry(GREEN, 5, 4); }, { "10+", "18+" } },
    { "a fifth orange one", [](PondSounds& t) { t.ApproachBerry(ORANGE, 5, 4); }, { "10+", "19+" } },
    { "shrinking at full length", [](PondSounds& t) { t.ApproachBerry(PURPLE, 24, 4); }, { "10+", "beat*-" } },
    { "one berry before it", [](PondSounds& t) { t.Approach(24); }, { "beat*" } },
    { "a segment pops off then",
      [](PondSounds& t) {
          t.Approach(24);
          t.snake->shrinkCount = 1;
      },
      { "22+" } },
    { "a freeze", [](PondSounds& t) { t.Approach(25); }, { "beat-", "17+" } },
    { "a collision",
      [](PondSounds& t) {
          t.Approach(5);
          t.pond.TurnToStone(GRID_X, GRID_Y);
      },
      { "beat-", "21+" } },
    { "the end of a speed-up",
      [](PondSounds& t) {
          t.Approach(5);
          t.snake->speedUpTimer = 1;
          t.snake->lastColour = RED;
      },
      { "14-", "15+" } },
    { "the rain's thunder", [](PondSounds& t) { t.snake->rainTimer = 375; }, { "12+" } },
    { "the rain's start", [](PondSounds& t) { t.snake->rainTimer = 350; }, { "rain*" } },
    { "the rain's far thunder", [](PondSounds& t) { t.snake->rainTimer = 250; }, { "13+" } },
    { "the rain's end", [](PondSounds& t) { t.snake->rainTimer = 1; }, { "rain-" } },
    { "a dead snake's face", [](PondSounds& t) { t.Die(18); }, {} },
    { "a dead snake's body", [](PondSounds& t) { t.Die(19); }, { "22+" } },
    { "the last snake gone",
      [](PondSounds& t) {
          t.Die(39);
          t.snake->lives = t.snake->length = 0;
      },
      { "rain-" } },
    { "a level's end", [](PondSounds& t) { t.snake->SnakeGather(); }, { "beat-", "rain-" } },
    { "a laser on a stone", [](PondSounds& t) { t.FireAtStone(); }, { "20+" } },
};

TEST_F(PondSounds, AccompanyWhatHappens)
{
    for (const int player : { 1, 2 }) {
        for (const SoundCase& given : soundCases) {
            Begin(player);
            given.prepare(*this);
            Play(1);
            EXPECT_EQ(Heard(), given.heard) << given.when << ", player " << player;
        }
    }
    pond.GameEnd();
    EXPECT_EQ(Heard().size(), SOUND_POND_LAST - SOUND_POND_FIRST + 1U) << "leaving stops every sound of the pond";
}

TEST_F(PondSounds, AmbienceHasASoundForFiveNumbersInAThousand)
{
    for (const int number : { 23, 24, 28, 29 }) {
        Begin(1);
        const auto draws = [number](uint32_t seed) {
            SeedRandom(seed);
            return Random() % 1000 == number;
        };
        uint32_t seed = 0;
        while (!draws(seed))
            ++seed;
        SeedRandom(seed);
        Play(1);
        const bool isAmbience = number >= SOUND_ENV_FIRST && number <= SOUND_ENV_LAST;
        EXPECT_EQ(Heard(), isAmbience ? std::set{ std::to_string(number) + "+" } : std::set<std::string>{});
    }
}

TEST_F(PondSounds, AreLoadedFromTheirFiles)
{
    const std::vector<std::string> files = { "drop",     "eat",   "rainloop", "thunder1", "thunder2", "speedup",
                                             "speedown", "beat",  "freeze",   "fade",     "laser",    "warp",
                                             "die",      "popo",  "lifeup",   "env1",     "env8",     "env11",
                                             "env12",    "env13", "rainloop", "beat" };
    const auto bytesOf = [&](const std::string& name) { // a size of its own for each
        return static_cast<size_t>(2 * (std::ranges::find(files, name) - files.begin()) + 2);
    };
    for (const std::string& name : files)
        game.pictures.folder.Write("Wav/" + name + ".wav",
                                   Wave(Chunk("fmt ", Format()) + Chunk("data", std::string(bytesOf(name), 'x'))));
    SoundRelease();
    SoundInit(nullptr);
    scenery.loadStage = 0;
    bool done = false;
    ASSERT_TRUE(pond.DataLoad(done));
    ASSERT_EQ(directX.buffers.size(), files.size());
    for (size_t i = 0; i < files.size(); ++i)
        EXPECT_EQ(directX.buffers[i]->bytes.size(), bytesOf(files[i])) << files[i];
}
}
