#include "platform/posix/kernel_object.h"
#include "platform/posix/out_of_memory.h"
#include "platform/posix/paths.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

BOOL SetCurrentDirectoryA(LPCSTR path)
{
    return OrOutOfMemory(FALSE, [path] {
        if (chdir(ResolvePath(path).c_str()) == 0)
            return TRUE;
        SetLastError(ERROR_FILE_NOT_FOUND);
        return FALSE;
    });
}

void OutputDebugStringA(LPCSTR text)
{
    std::fputs(text, stderr);
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
