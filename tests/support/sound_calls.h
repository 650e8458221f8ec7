#pragma once

#include <vector>

/// A sound played or stopped while the program is not muted.
struct SoundCall {
    int id;
    bool plays;
    bool loops;
};

/// Those since the last call, in order, whether there is a sound device or not.
std::vector<SoundCall> TakeSoundCalls();
