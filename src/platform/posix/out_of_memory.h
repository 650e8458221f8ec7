#pragma once

#include "platform/kernel.h"

#include <new>

/// The system's calls report a lack of memory by their result: runs the call's work and gives `failure` instead of
/// letting the exception out.
template <class Result, class Call>
Result OrOutOfMemory(Result failure, Call call)
{
    try {
        return call();
    } catch (const std::bad_alloc&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return failure;
    }
}
