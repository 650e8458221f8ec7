#pragma once

#include <cstddef>

/// Memory at a multiple of `alignment`, a power of two; null when there is none. FreeAligned gives it back.
void* AllocateAligned(size_t size, size_t alignment);
void FreeAligned(void* memory);
