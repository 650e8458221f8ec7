#pragma once

#include "platform/kernel.h"

#include <cstdint>
#include <memory>
#include <string>

/// One member of a pack: the hash of its name and where its bytes lie.
struct PackEntry {
    uint32_t hash;
    uint32_t offset; ///< from the start of the pack file
    uint32_t size;   ///< bytes
};

/// An open pack. All numbers in the file are little-endian: magic "FPX_", entry count, entries, then members.
class CPackFile
{
public:
    ~CPackFile() { Close(); }

    /// False: ENGINE_OPEN_PACK_FILE or ENGINE_READ_PACK_FILE; the slot is then free.
    bool Open(const char* path);
    void Close();
    /// The first entry with that hash, or null.
    const PackEntry* Find(uint32_t hash) const;

    HANDLE handle = INVALID_HANDLE_VALUE; ///< stays open; invalid = free slot
    uint32_t count = 0;
    std::unique_ptr<PackEntry[]> index;

private:
    bool ReadHeaderAndIndex();
};

constexpr int PACK_SLOTS = 32;
extern CPackFile packTable[PACK_SLOTS];

/// An existing file on disk, for CloseHandle; INVALID_HANDLE_VALUE on failure.
HANDLE OpenForReading(const char* path);

/// Opens a pack into the table; does nothing when the first slot is taken. False: an ENGINE_ code is stored.
bool OpenPack(const char* path);

/// The 32-bit hash by which a pack knows its members, over the text without its terminating zero.
uint32_t HashName(const char* text);

/// The member that a request path names: from its first '/' on, 'A' to 'Z' in lower case, with '\' for '/'. Empty for
/// a path without '/'.
std::string MemberName(const char* path);

/// The hash of the member that a request path names; 0 for a path without '/'.
uint32_t HashMember(const char* path);
