#pragma once

#include "app/log.h"

#include <cstddef>
#include <cstdint>
#include <functional>

/// A step of loading, and its line in the log.
template <typename Owner>
struct LoadingStep {
    bool (Owner::*load)();
    const char* logLine;
};

/// Does one step of the table, the one that `next` counts; the last one, and any call after it, sets `done`. False when
/// the step failed: the next call repeats it.
template <typename Owner, size_t count>
bool DoLoadingStep(Owner& owner, const LoadingStep<Owner> (&steps)[count], int32_t& next, bool& done)
{
    if (next < static_cast<int32_t>(count)) {
        if (!std::invoke(steps[next].load, owner))
            return false;
        WriteLog(steps[next].logLine);
        ++next;
    }
    if (next >= static_cast<int32_t>(count))
        done = true;
    return true;
}
