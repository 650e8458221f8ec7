#pragma once

#include "support/recording.h"
#include "support/state_fields.h"

#include <string>
#include <vector>

/// The whole program in a folder of its own, with stand-in pictures and empty settings: window messages in, frames out,
/// no matter how fast the clock runs. It uses the program's global objects, so there is one at a time.
class Session
{
public:
    /// From the program's start, or from a game's first frame on; see Recording::players. Throws when it cannot start.
    Session(int players, uint32_t seed);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    bool IsRunning() const;
    void Do(const Action& action);
    void Frame();
    /// Closes the window if it is still there, and saves the settings as the end of the program does.
    void Close();

    /// Everything: the program's own state, the sounds started so far, log lines and stored settings.
    StateFields Fields() const;
    /// One of them, which refers to the program's value as long as the session lasts. Throws when there is none.
    StateField Field(const std::string& name);

private:
    void ResetProgram();
    void Send(unsigned message, uintptr_t wParam = 0, intptr_t lParam = 0);

    std::string folderBefore;     ///< the current one
    StateFields known;            ///< when a field was last missing among them
    std::vector<Action> releases; ///< of what is held for one frame
    bool isOpen = true;
};

/// Plays a recording's actions and returns it with what they left behind. Adds to `unseen` the conditions of
/// `shows` that never held.
Recording Play(const Recording& script, std::vector<std::string>& unseen);
