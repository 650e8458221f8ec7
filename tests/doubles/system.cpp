#include "doubles/system.h"

#include "platform/kernel.h"
#include "platform/multimedia.h"

uint32_t clockMs = 1000;

DWORD timeGetTime()
{
    return clockMs;
}

void Sleep(DWORD milliseconds)
{
    clockMs += milliseconds;
}

/// The program does not know its place, and so stays in the test's folder.
DWORD GetModuleFileNameA(HMODULE, LPSTR, DWORD)
{
    return 0;
}
