#include "doubles/fake_handle.h"

#include "platform/posix/kernel_object.h"

HANDLE NewFakeHandle()
{
    return HandleOf(new KernelObject);
}
