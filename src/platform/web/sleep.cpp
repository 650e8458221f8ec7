#include "platform/kernel.h"

/// The browser has its time between the frames (idle.cpp); within one nobody waits.
void Sleep(DWORD) {}
