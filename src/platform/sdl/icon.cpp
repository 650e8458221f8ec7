#include "platform/sdl/icon.h"

#include "platform/gdi.h"
#include "platform/window.h"

#include <cstdint>
#include <cstring>

namespace
{
/// The icon file that the Windows program carries as well, under that number.
constexpr unsigned char FILE_BYTES[] = {
#include "icon_bytes.inc" // made by CMake
};
constexpr int RESOURCE_ID = 101;

struct FileHeader {
    uint16_t reserved;
    uint16_t type;
    uint16_t count; ///< of entries, which follow
};

struct FileEntry {
    uint8_t width;
    uint8_t height;
    uint8_t colours;
    uint8_t reserved;
    uint16_t planes;
    uint16_t bits;
    uint32_t byteCount;
    uint32_t offset;
};

template <class Record>
Record ReadAt(const unsigned char* bytes)
{
    Record record;
    std::memcpy(&record, bytes, sizeof record);
    return record;
}
}

/// The widest of the plain bitmaps, which grow in the file; larger sizes are compressed. It lies in the program's own
/// memory.
HICON LoadIconA(HINSTANCE, LPCSTR name)
{
    if (name != MAKEINTRESOURCEA(RESOURCE_ID))
        return nullptr;
    const unsigned char* widest = nullptr;
    for (size_t i = 0; i < ReadAt<FileHeader>(FILE_BYTES).count; ++i) {
        const auto entry = ReadAt<FileEntry>(FILE_BYTES + sizeof(FileHeader) + i * sizeof(FileEntry));
        if (ReadAt<BITMAPINFOHEADER>(FILE_BYTES + entry.offset).biSize == sizeof(BITMAPINFOHEADER))
            widest = FILE_BYTES + entry.offset;
    }
    return reinterpret_cast<HICON>(const_cast<unsigned char*>(widest));
}

void SetIcon(SDL_Window* window, HICON icon)
{
    if (!icon)
        return;
    const auto* bytes = reinterpret_cast<const unsigned char*>(icon);
    const auto header = ReadAt<BITMAPINFOHEADER>(bytes);
    const int size = static_cast<int>(header.biWidth); // as high as wide; the height in the header counts a mask too
    SDL_Surface* picture = SDL_CreateRGBSurfaceWithFormat(0, size, size, 32, SDL_PIXELFORMAT_BGRA32);
    if (!picture)
        return;
    const size_t rowBytes = static_cast<size_t>(size) * 4;
    for (int y = 0; y < size; ++y) // the lowest row comes first
        std::memcpy(static_cast<char*>(picture->pixels) + (size - 1 - y) * picture->pitch,
                    bytes + sizeof header + static_cast<size_t>(y) * rowBytes, rowBytes);
    SDL_SetWindowIcon(window, picture);
    SDL_FreeSurface(picture);
}
