#pragma once

#include <cstdint>

/// The clock of unit_tests in ms, so that no test depends on a machine's; Sleep advances it.
extern uint32_t clockMs;
