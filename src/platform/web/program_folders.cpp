#include "platform/kernel.h"
#include "platform/log_file.h"

#include <cstring>
#include <unistd.h>

/// The page has laid the data into the root folder of the program's own file system.
DWORD GetModuleFileNameA(HMODULE, LPSTR path, DWORD)
{
    constexpr char PROGRAM[] = "/tervalis";
    std::memcpy(path, PROGRAM, sizeof PROGRAM);
    return sizeof PROGRAM - 1;
}

BOOL SetCurrentDirectoryA(LPCSTR path)
{
    return chdir(path) == 0;
}

DWORD GetCurrentDirectoryA(DWORD size, LPSTR path)
{
    return getcwd(path, size) ? static_cast<DWORD>(std::strlen(path)) : 0;
}

/// The browser's console.
const char* LogFile()
{
    return "/dev/stdout";
}
