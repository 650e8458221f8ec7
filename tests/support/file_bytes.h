#pragma once

#include <bit>
#include <string>

/// A number of that type as a file's bytes.
template <typename Number>
std::string LittleEndian(Number value)
{
    static_assert(std::endian::native == std::endian::little);
    return { reinterpret_cast<const char*>(&value), sizeof value };
}

/// What stands in a BMP file before its palette and pixels.
inline std::string BmpHeader(int width, int height, int bitCount, int colours)
{
    const int fields[] = { 0, 0, 54 + colours * 4, 40, width, height, bitCount << 16 | 1, 0, 0, 0, 0, colours, 0 };
    std::string header = "BM";
    for (const int field : fields)
        header += LittleEndian(field);
    return header;
}
