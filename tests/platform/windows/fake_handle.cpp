#include "platform/fake_handle.h"

HANDLE NewFakeHandle()
{
    return CreateEventA(nullptr, TRUE, FALSE, nullptr);
}
