#pragma once

#include <cstdint>
#include <string>

/// The clock and the program's place in unit_tests, so that a test does not depend on a machine's.
struct SystemDouble {
    uint32_t now = 1000;     ///< ms; Sleep advances it
    std::string programPath; ///< what GetModuleFileNameA answers
};
extern SystemDouble systemDouble;
