#pragma once

#include "platform/types.h"

#include <cstdint>
#include <memory>

/// The bytes of one file, loose on disk or, failing that, a member of the pack.
class CFileData
{
public:
    /// Replaces the bytes. False: ENGINE_LOAD_FILE, ENGINE_ALLOCATE_MEMORY or ENGINE_READ_FILE.
    bool Load(const char* path);
    void Free();

    uint32_t offset = 0; ///< in the pack; 0 for a loose file
    uint32_t size = 0;   ///< bytes in `data`
    std::unique_ptr<uint8_t[]> data;

private:
    bool ReadFrom(HANDLE file, uint32_t memberOffset, uint32_t memberSize);
};
