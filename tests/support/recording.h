#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// Something done to the program right before a frame: a key, a mouse click, a field set (see session.cpp).
struct Action {
    int frame; ///< from 0
    std::string verb;
    std::string arguments;
};

/// What a stretch of frames left behind.
struct Stretch {
    int frame;                                  ///< frames played by its end
    uint64_t state;                             ///< sum of the whole state at its end
    uint64_t picture;                           ///< of the finished pictures of some of its frames
    uint64_t sounds;                            ///< of every play and stop in it
    std::map<std::string, std::string> changes; ///< state fields that differ from those at the stretch before
};

/// A run of the program that tests play again: what is done in it, what it is there to show, and what it left behind.
struct Recording {
    static constexpr int STRETCH = 100; ///< frames
    static constexpr int FROM_START = -1;
    static constexpr char ABSENT[] = "0"; ///< the value of a field that is not written down

    std::string about;
    uint32_t seed = 0;
    int players = FROM_START; ///< begins with a game of one (0) or two (1) players; or with the program's start
    int frames = 0;
    std::vector<Action> actions;    ///< in order of frames
    std::vector<std::string> shows; ///< conditions, each of which must hold after some frame
    std::vector<Stretch> stretches; ///< the last one, after the program's end, is of no frame
};

/// Reads the text form. Throws when the file is missing or not of that form.
Recording ReadRecording(const std::string& path);
void WriteRecording(const Recording& recording, const std::string& path);

/// Its lines in the text form, each behind a line break.
std::string Text(const Stretch& stretch);
