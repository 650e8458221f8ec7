#include "platform/posix/kernel_object.h"
#include "platform/posix/out_of_memory.h"

/// The page starts the game only while no other page of the browser plays it.
HANDLE CreateMutexA(SECURITY_ATTRIBUTES*, BOOL, LPCSTR)
{
    return OrOutOfMemory<HANDLE>(nullptr, [] {
        SetLastError(ERROR_SUCCESS);
        return HandleOf(new KernelObject);
    });
}
