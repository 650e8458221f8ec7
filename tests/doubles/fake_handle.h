#pragma once

#include "platform/types.h"

/// A handle that CloseHandle takes.
HANDLE NewFakeHandle();
