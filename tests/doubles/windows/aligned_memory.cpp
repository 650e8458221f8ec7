#include "support/aligned_memory.h"

#include <malloc.h>

void* AllocateAligned(size_t size, size_t alignment)
{
    return _aligned_malloc(size, alignment);
}

void FreeAligned(void* memory)
{
    _aligned_free(memory);
}
