#include "platform/multimedia.h"

#include <chrono>

namespace
{
/// Counted from here, the clock does not wrap around while a game is on.
const std::chrono::steady_clock::time_point programStart = std::chrono::steady_clock::now();
}

DWORD timeGetTime()
{
    using namespace std::chrono;
    return static_cast<DWORD>(duration_cast<milliseconds>(steady_clock::now() - programStart).count());
}
