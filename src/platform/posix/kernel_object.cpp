#include "platform/posix/kernel_object.h"

namespace
{
thread_local DWORD lastSystemError = ERROR_SUCCESS;
}

DWORD GetLastError()
{
    return lastSystemError;
}

void SetLastError(DWORD error)
{
    lastSystemError = error;
}

HANDLE HandleOf(KernelObject* object)
{
    return object;
}

KernelObject* ObjectOf(HANDLE handle)
{
    return static_cast<KernelObject*>(handle);
}

BOOL CloseHandle(HANDLE handle)
{
    delete ObjectOf(handle);
    return TRUE;
}
