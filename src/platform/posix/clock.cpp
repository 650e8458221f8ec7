#include "platform/kernel.h"
#include "platform/multimedia.h"

#include <chrono>
#include <thread>

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

void Sleep(DWORD milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}
