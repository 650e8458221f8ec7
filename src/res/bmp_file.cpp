#include "res/bmp_file.h"

#include "res/little_endian.h"

#include <algorithm>

namespace
{
constexpr uint32_t FILE_HEADER_BYTES = 14;
constexpr uint32_t HEADER_BYTES = FILE_HEADER_BYTES + 40;
constexpr uint32_t ENTRY_BYTES = 4;
}

bool BmpFile::ReadHeaders(const uint8_t* bytes, uint32_t byteCount)
{
    if (byteCount < HEADER_BYTES || bytes[0] != 'B' || bytes[1] != 'M')
        return false;
    data = bytes;
    size = byteCount;
    pixelOffset = ReadLe32(bytes + 10);
    headerSize = ReadLe32(bytes + 14);
    width = static_cast<int32_t>(ReadLe32(bytes + 18));
    height = static_cast<int32_t>(ReadLe32(bytes + 22));
    bitCount = ReadLe16(bytes + 28);
    coloursUsed = ReadLe32(bytes + 46);
    return true;
}

uint64_t BmpFile::RowBytes() const
{
    return (static_cast<uint64_t>(width) * bitCount / 8 + 3) & ~uint64_t{ 3 };
}

uint64_t BmpFile::PaletteOffset() const
{
    return uint64_t{ FILE_HEADER_BYTES } + headerSize;
}

int BmpFile::PaletteCount() const
{
    if (coloursUsed == 0)
        return BMP_PALETTE_SIZE;
    return static_cast<int>(std::min<uint32_t>(coloursUsed, BMP_PALETTE_SIZE));
}

bool BmpFile::IsReadable() const
{
    if (bitCount != 8 && bitCount != 16 && bitCount != 24)
        return false;
    if (bitCount == 8 && PaletteOffset() + static_cast<uint64_t>(PaletteCount()) * ENTRY_BYTES > size)
        return false;
    return pixelOffset + RowBytes() * static_cast<uint64_t>(height) <= size;
}

const uint8_t* BmpFile::Row(int imageRow) const
{
    return data + pixelOffset + RowBytes() * static_cast<uint64_t>(height - 1 - imageRow);
}

const uint8_t* BmpFile::PaletteEntry(int entry) const
{
    return data + PaletteOffset() + static_cast<uint64_t>(entry) * ENTRY_BYTES;
}
