#pragma once

#include "platform/kernel.h"

/// What a kernel handle stands for. CloseHandle destroys it.
struct KernelObject {
    KernelObject() = default;
    virtual ~KernelObject() = default;
    KernelObject(const KernelObject&) = delete;
    KernelObject& operator=(const KernelObject&) = delete;
};

/// The handle of a new object; CloseHandle takes it back.
HANDLE HandleOf(KernelObject* object);

/// Null when the handle is none.
KernelObject* ObjectOf(HANDLE handle);
