#pragma once

#include "support/state_fields.h"

#include <array>

/// What the program plays and stops while it is not muted, whether there is a sound device or not.
struct SoundsHeard {
    Checksum calls;                  ///< in order
    std::array<int32_t, 31> plays{}; ///< how often, by sound id
};
extern SoundsHeard soundsHeard;
