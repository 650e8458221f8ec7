#include "res/file_data.h"

#include "gfx/error.h"
#include "platform/kernel.h"
#include "res/pack_file.h"

#include <new>

namespace
{
/// Twice what a picture of the whole screen needs at most: a damaged pack must not ask for gigabytes, nor a file stall
/// the start.
constexpr uint32_t MAX_FILE_BYTES = 2u << 20;

struct CloseFile {
    void operator()(HANDLE file) const { CloseHandle(file); }
};

void SeekTo(HANDLE file, uint32_t position)
{
    LONG high = 0; // with it the position counts as unsigned
    SetFilePointer(file, static_cast<LONG>(position), &high, FILE_BEGIN);
}
}

bool CFileData::Load(const char* path)
{
    if (const HANDLE file = OpenForReading(path); file != INVALID_HANDLE_VALUE) {
        const std::unique_ptr<void, CloseFile> openFile(file);
        return ReadFrom(file, 0, GetFileSize(file, nullptr));
    }

    const CPackFile& pack = packTable[0];
    const PackEntry* entry = pack.Find(HashMember(path));
    if (!entry)
        return FailWith(ENGINE_LOAD_FILE);
    SeekTo(pack.handle, entry->offset);
    return ReadFrom(pack.handle, entry->offset, entry->size);
}

bool CFileData::ReadFrom(HANDLE file, uint32_t memberOffset, uint32_t memberSize)
{
    Free();
    // Zeros stand for what a file that is cut short lacks.
    if (memberSize <= MAX_FILE_BYTES)
        data.reset(new (std::nothrow) uint8_t[memberSize]());
    if (!data)
        return FailWith(ENGINE_ALLOCATE_MEMORY);
    DWORD bytesRead = 0;
    if (!ReadFile(file, data.get(), memberSize, &bytesRead, nullptr)) {
        Free();
        return FailWith(ENGINE_READ_FILE);
    }
    offset = memberOffset;
    size = memberSize;
    return true;
}

void CFileData::Free()
{
    data.reset();
    offset = 0;
    size = 0;
}
