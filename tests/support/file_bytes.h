#pragma once

#include <cstdint>
#include <string>

/// A number of that type as a file's bytes.
template <typename Number>
std::string LittleEndian(Number value)
{
    std::string bytes;
    for (size_t i = 0; i < sizeof value; ++i)
        bytes += static_cast<char>(value >> (8 * i));
    return bytes;
}

/// What stands in a BMP file before its palette and pixels.
inline std::string BmpHeader(int width, int height, uint32_t bitCount, uint32_t colours)
{
    const auto columns = static_cast<uint32_t>(width);
    const auto rows = static_cast<uint32_t>(height);
    const uint32_t fields[] = { 0, 0, 54 + colours * 4, 40, columns, rows, bitCount << 16 | 1, 0, 0, 0, 0, colours, 0 };
    std::string header = "BM";
    for (const uint32_t field : fields)
        header += LittleEndian(field);
    return header;
}
