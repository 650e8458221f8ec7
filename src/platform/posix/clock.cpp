#include "platform/multimedia.h"

#include <chrono>

namespace
{
using namespace std::chrono;

/// Counted from here, the clock does not wrap around while a game is on.
const auto programStart = floor<milliseconds>(steady_clock::now());
}

DWORD timeGetTime()
{
    return static_cast<DWORD>((floor<milliseconds>(steady_clock::now()) - programStart).count());
}
