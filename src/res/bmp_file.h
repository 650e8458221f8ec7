#pragma once

#include <cstdint>

constexpr int BMP_PALETTE_SIZE = 256;

/// A BMP file in memory and what its headers say. Nothing outside `data`[0 .. `size`) is read.
struct BmpFile {
    const uint8_t* data;
    uint32_t size;
    uint32_t pixelOffset;
    uint32_t headerSize;
    int32_t width;
    int32_t height; ///< rows, the bottom one first
    uint16_t bitCount;
    uint32_t coloursUsed; ///< 0 means all 256

    /// False when the file is too short for its headers or does not start with "BM".
    bool ReadHeaders(const uint8_t* bytes, uint32_t byteCount);

    /// Whether bit count and size allow reading all pixels and, with 8 bits, all palette entries.
    bool IsReadable() const;

    /// The stored row that belongs to that row of the image.
    const uint8_t* Row(int imageRow) const;

    int PaletteCount() const;
    /// Blue, green, red and a reserved byte.
    const uint8_t* PaletteEntry(int entry) const;

private:
    uint64_t RowBytes() const;
    uint64_t PaletteOffset() const;
};
