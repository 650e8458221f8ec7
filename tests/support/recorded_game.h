#pragma once

#include "game/pond.h"

#include <cstdint>
#include <string>
#include <vector>

struct KeyPress {
    int frame; ///< from 0
    int key;   ///< virtual-key code
};

/// A whole game: its seed and keys, and the checksum of the state after each stretch of frames, the last of which may
/// be shorter.
struct RecordedGame {
    static constexpr int STRETCH = 500; ///< frames

    int players = 0; ///< 0 = one, 1 = two
    uint32_t seed = 0;
    int frames = 0;
    std::vector<KeyPress> keys; ///< in order of frames
    std::vector<uint64_t> checksums;
};

/// Reads the text form. Throws when the file is missing or not of that form.
RecordedGame ReadRecordedGame(const std::string& path);
void WriteRecordedGame(const RecordedGame& recording, const std::string& path);
