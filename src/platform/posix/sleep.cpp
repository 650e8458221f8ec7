#include "platform/kernel.h"

#include <chrono>
#include <thread>

void Sleep(DWORD milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}
