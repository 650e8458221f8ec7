#include "support/allocations.h"

#include "support/aligned_memory.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{
std::atomic<int> allocations = 0;
std::atomic<int> planesUntilFailure = 0;
}

int AllocationCount()
{
    return allocations;
}

void FailPlane(int number)
{
    planesUntilFailure = number;
}

// The other forms of `new` call these two.
void* operator new(size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void* operator new(size_t size, std::align_val_t alignment)
{
    // Only the planes are aligned beyond the ordinary.
    ++allocations;
    if (planesUntilFailure > 0 && --planesUntilFailure == 0)
        throw std::bad_alloc();
    if (void* memory = AllocateAligned(size, static_cast<size_t>(alignment)))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory, std::align_val_t) noexcept
{
    FreeAligned(memory);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, size_t) noexcept
{
    std::free(memory);
}
