#include "res/pack_file.h"

#include "gfx/error.h"
#include "res/file_report.h"
#include "res/little_endian.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <new>

namespace
{
constexpr char MAGIC[] = { 'F', 'P', 'X', '_' };
constexpr DWORD HEADER_BYTES = 8;
constexpr DWORD ENTRY_BYTES = 12;

/// Far more than any pack needs: a damaged header must not ask for gigabytes.
constexpr uint32_t MAX_ENTRIES = 1u << 20;

bool ReadBytes(HANDLE file, uint8_t* bytes, DWORD size)
{
    DWORD bytesRead = 0;
    return ReadFile(file, bytes, size, &bytesRead, nullptr) != 0;
}

/// Null when the index is too large or cannot be read. What a file that is cut short lacks reads as zeros.
std::unique_ptr<PackEntry[]> ReadIndex(HANDLE file, uint32_t count)
{
    if (count > MAX_ENTRIES)
        return nullptr;
    const DWORD size = count * ENTRY_BYTES;
    std::unique_ptr<uint8_t[]> bytes(new (std::nothrow) uint8_t[size]());
    std::unique_ptr<PackEntry[]> entries(new (std::nothrow) PackEntry[count]);
    if (!bytes || !entries || !ReadBytes(file, bytes.get(), size))
        return nullptr;
    for (uint32_t i = 0; i < count; ++i) {
        const uint8_t* entry = bytes.get() + i * ENTRY_BYTES;
        entries[i] = { ReadLe32(entry), ReadLe32(entry + 4), ReadLe32(entry + 8) };
    }
    return entries;
}
}

HANDLE OpenForReading(const char* path)
{
    return CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool CPackFile::Open(const char* path)
{
    Close();
    handle = OpenForReading(path);
    if (handle == INVALID_HANDLE_VALUE)
        return FailWith(ENGINE_OPEN_PACK_FILE);
    if (ReadHeaderAndIndex())
        return true;
    Close();
    return FailWith(ENGINE_READ_PACK_FILE);
}

bool CPackFile::ReadHeaderAndIndex()
{
    uint8_t header[HEADER_BYTES] = {};
    if (!ReadBytes(handle, header, HEADER_BYTES) || std::memcmp(header, MAGIC, sizeof(MAGIC)) != 0)
        return false;
    count = ReadLe32(header + 4);
    index = ReadIndex(handle, count);
    return index != nullptr;
}

void CPackFile::Close()
{
    if (handle != INVALID_HANDLE_VALUE)
        CloseHandle(handle);
    handle = INVALID_HANDLE_VALUE;
    count = 0;
    index.reset();
}

const PackEntry* CPackFile::Find(uint32_t hash) const
{
    for (uint32_t i = 0; i < count; ++i)
        if (index[i].hash == hash)
            return &index[i];
    return nullptr;
}

bool OpenPack(const char* path)
{
    if (packTable[0].handle != INVALID_HANDLE_VALUE)
        return true;
    const auto isFree = [](const CPackFile& pack) { return pack.handle == INVALID_HANDLE_VALUE; };
    const auto slot = std::find_if(std::begin(packTable), std::end(packTable), isFree);
    const bool opened = slot != std::end(packTable) ? slot->Open(path) : FailWith(ENGINE_OPEN_PACK);
    if (!opened)
        ReportFile(path, ErrorText(lastError));
    return opened;
}
