#include "platform/posix/kernel_object.h"

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
