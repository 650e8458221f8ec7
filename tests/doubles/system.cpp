#include "doubles/system.h"

#include "platform/kernel.h"
#include "platform/multimedia.h"

SystemDouble systemDouble;

DWORD timeGetTime()
{
    return systemDouble.now;
}

void Sleep(DWORD milliseconds)
{
    systemDouble.now += milliseconds;
}

DWORD GetModuleFileNameA(HMODULE, LPSTR path, DWORD size)
{
    const size_t length = systemDouble.programPath.copy(path, size - 1);
    path[length] = 0;
    return static_cast<DWORD>(length);
}
