#include "support/recorded_game.h"

#include <fstream>
#include <stdexcept>

namespace
{
constexpr int KEYS_PER_LINE = 12;
}

// The text form: a word for what follows, then its numbers.
//   players 0
//   seed 17
//   frames 9000
//   key 61:37 83:38 ...
//   sum 00f1...          one line a stretch, the last one for the end

RecordedGame ReadRecordedGame(const std::string& path)
{
    std::ifstream file(path);
    RecordedGame recording;
    std::string word;
    while (file >> word) {
        KeyPress press{};
        char colon = 0;
        if (word == "players")
            file >> recording.players;
        else if (word == "seed")
            file >> recording.seed;
        else if (word == "frames")
            file >> recording.frames;
        else if (word == "sum")
            file >> std::hex >> recording.checksums.emplace_back() >> std::dec;
        else if (word == "key") {
            while (file.peek() != '\n' && file >> press.frame >> colon >> press.key)
                recording.keys.push_back(press);
        }
        if (!file)
            throw std::runtime_error(path + ": not a recorded game");
    }
    if (recording.frames == 0 || recording.checksums.empty())
        throw std::runtime_error(path + ": no recorded game");
    return recording;
}

void WriteRecordedGame(const RecordedGame& recording, const std::string& path)
{
    std::ofstream file(path);
    file << "players " << recording.players << "\nseed " << recording.seed << "\nframes " << recording.frames;
    for (size_t i = 0; i < recording.keys.size(); ++i)
        file << (i % KEYS_PER_LINE == 0 ? "\nkey " : " ") << recording.keys[i].frame << ':' << recording.keys[i].key;
    file << '\n' << std::hex;
    for (const uint64_t checksum : recording.checksums)
        file << "sum " << checksum << '\n';
    if (!file.flush())
        throw std::runtime_error(path + ": cannot be written");
}
