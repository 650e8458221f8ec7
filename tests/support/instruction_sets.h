#pragma once

#include <gtest/gtest.h>
#include <hwy/highway.h>

#include <cstdint>

/// Runs the check on every instruction set that kernels were built for and this machine has, the plainest included.
template <typename Check>
void OnEveryInstructionSet(Check check)
{
    for (const int64_t target : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(target));
        hwy::SetSupportedTargetsForTest(target);
        check();
    }
    hwy::SetSupportedTargetsForTest(0);
}
