#include "support/faults.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace
{
/// Null where the test wants no memory to be found.
void* Allocate(size_t size, size_t alignment)
{
    if (IsToFail(Calls::MEMORY))
        return nullptr;
    return std::aligned_alloc(alignment, (size + alignment) / alignment * alignment);
}
}

// What has no form here falls back on one that has, or is a sanitiser's own and does not count.
void* operator new(size_t size)
{
    if (void* memory = Allocate(size, alignof(std::max_align_t)))
        return memory;
    throw std::bad_alloc();
}

void* operator new(size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size, alignof(std::max_align_t));
}

void* operator new[](size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size, alignof(std::max_align_t));
}

void* operator new[](size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    if (IsToFail(Calls::PLANES))
        return nullptr;
    return Allocate(size, static_cast<size_t>(alignment));
}

/// The usual forms of delete give the memory back with free(); to a sanitiser's that is no match of these forms of new.
extern "C" const char* __asan_default_options()
{
    return "alloc_dealloc_mismatch=0";
}
