#include "support/aligned_memory.h"

#include <cstdlib>

void* AllocateAligned(size_t size, size_t alignment)
{
    return std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
}

void FreeAligned(void* memory)
{
    std::free(memory);
}
