#include "support/allocations.h"

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

// Most other forms of `new` call the first. Planes use the second, written out because a sanitiser's do not.
void* operator new(size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void* operator new[](size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    ++allocations;
    if (planesUntilFailure > 0 && --planesUntilFailure == 0)
        return nullptr;
    const auto unit = static_cast<size_t>(alignment);
    return std::aligned_alloc(unit, (size + unit - 1) / unit * unit);
}

void operator delete[](void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, size_t) noexcept
{
    std::free(memory);
}
