#include "doubles/fake_handle.h"

HANDLE NewFakeHandle()
{
    return CreateEventA(nullptr, TRUE, FALSE, nullptr);
}
