#include "support/allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{
std::atomic<int> allocations = 0;
}

int AllocationCount()
{
    return allocations;
}

// The other forms of `new` call this one.
void* operator new(size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, size_t) noexcept
{
    std::free(memory);
}
