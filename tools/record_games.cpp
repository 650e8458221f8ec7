// Records anew what the tests replay. A recording is a text file: how it begins, what is done in which frame, what it
// is there to show, and then what it left behind, which this program writes.
//   record_games tests/data/NAME.txt ...    plays those again
//   record_games --bot tests/data           lets the bot play its games anew, then records them
// To be run after a wanted change of play or picture. A recording that does not show what it was made for is refused
// and left as it was.

#include "bot.h"
#include "game/section_main.h"
#include "support/session.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

namespace
{
struct GamePlan {
    const char* name;
    BotStyle style;
};
/// Their seeds, lengths and what they show are in the files.
constexpr GamePlan plans[] = {
    { "one_player", { .recklessLevel = 5 } },
    { "two_players", { .recklessFrom = 8000 } },
    { "laser_on_gold", { .firesAtGold = true, .recklessFrom = 6000, .pauseAt = 1000 } },
};

/// The keys of a game as the bot plays it.
void PlayWithBot(Recording& recording, const BotStyle& style)
{
    recording.actions.clear();
    Session session(recording.players, recording.seed);
    Bot bot(sectionMain.pond, style);
    for (int frame = 0; frame < recording.frames && !sectionMain.pond.gameOver; ++frame) {
        if (const int key = bot.NextKey(frame); key != 0)
            recording.actions.push_back({ frame, "key", std::to_string(key) });
        if (!recording.actions.empty() && recording.actions.back().frame == frame)
            session.Do(recording.actions.back());
        session.Frame();
    }
}

/// False when it is refused.
bool Record(const Recording& script, const std::string& path)
{
    std::vector<std::string> unseen;
    const Recording recording = Play(script, unseen);
    for (const std::string& condition : unseen)
        std::printf("%s does not show %s\n", path.c_str(), condition.c_str());
    if (!unseen.empty())
        return false;
    WriteRecording(recording, path); // git tells what has changed
    return true;
}

bool RecordBotGames(const std::filesystem::path& folder)
{
    bool all = true;
    for (const GamePlan& plan : plans) {
        const std::string path = (folder / (std::string(plan.name) + ".txt")).string();
        Recording recording = ReadRecording(path);
        PlayWithBot(recording, plan.style);
        all = Record(recording, path) && all;
    }
    return all;
}
}

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: record_games FILE... | --bot FOLDER\n");
        return 2;
    }
    if (argc == 3 && std::strcmp(argv[1], "--bot") == 0)
        return RecordBotGames(std::filesystem::absolute(argv[2])) ? 0 : 1;
    std::vector<std::string> paths;
    for (int i = 1; i < argc; ++i)
        paths.push_back(std::filesystem::absolute(argv[i]).string());
    bool all = true;
    for (const std::string& path : paths)
        all = Record(ReadRecording(path), path) && all;
    return all ? 0 : 1;
}
