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
    return handle == INVALID_HANDLE_VALUE ? nullptr : static_cast<KernelObject*>(handle);
}

BOOL CloseHandle(HANDLE handle)
{
    KernelObject* object = ObjectOf(handle);
    if (!object) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    delete object;
    return TRUE;
}
