#include "platform/posix/kernel_object.h"
#include "platform/posix/paths.h"

#include <algorithm>
#include <cstdlib>
#include <unistd.h>

DWORD GetModuleFileNameA(HMODULE, LPSTR path, DWORD size)
{
    const ssize_t length = readlink("/proc/self/exe", path, size);
    // A full buffer may hold a cut path, which would name another folder.
    if (length < 0 || static_cast<DWORD>(length) >= size) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return 0;
    }
    path[length] = '\0';
    return static_cast<DWORD>(length);
}

BOOL SetCurrentDirectoryA(LPCSTR path)
{
    if (chdir(ResolvePath(path).c_str()) == 0)
        return TRUE;
    SetLastError(ERROR_FILE_NOT_FOUND);
    return FALSE;
}

HGLOBAL GlobalAlloc(UINT, size_t bytes)
{
    return std::malloc(std::max<size_t>(bytes, 1)); // no bytes are memory too
}

HGLOBAL GlobalFree(HGLOBAL memory)
{
    std::free(memory);
    return nullptr;
}
