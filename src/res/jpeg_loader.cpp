#include "gfx/error.h"
#include "res/image_loader.h"

#include <turbojpeg.h>

#include <memory>
#include <new>
#include <type_traits>

namespace
{
struct DecoderRelease {
    void operator()(void* decoder) const { tjDestroy(decoder); }
};
using Decoder = std::unique_ptr<std::remove_pointer_t<tjhandle>, DecoderRelease>;

constexpr uint8_t MARKER = 0xFF; ///< repeated where a file fills up
constexpr uint8_t HUFFMAN_FRAME = 0xC0;
constexpr uint8_t PROGRESSIVE_HUFFMAN_FRAME = 0xC2;

/// A JPEG file in memory and what its header says.
struct JpegFile {
    const uint8_t* data;
    uint32_t size;
    int width;
    int height;
};

/// The same picture with arithmetic codes takes five times as long: such files, which hardly anything writes, would
/// stall the start.
bool HasHuffmanCodes(const JpegFile& file)
{
    uint32_t at = 2; // behind the start of the image
    while (at + 4 <= file.size && file.data[at] == MARKER) {
        const uint8_t kind = file.data[at + 1];
        if (kind >= HUFFMAN_FRAME && kind <= PROGRESSIVE_HUFFMAN_FRAME)
            return true;
        at += kind == MARKER ? 1u : 2u + file.data[at + 2] * 256u + file.data[at + 3];
    }
    return false;
}

bool ReadHeader(tjhandle decoder, JpegFile& file)
{
    int subsampling = 0;
    int colourSpace = 0;
    return tjDecompressHeader3(decoder, file.data, file.size, &file.width, &file.height, &subsampling, &colourSpace) ==
           0;
}

/// Of blue, green, red triples.
int RowBytes(const JpegFile& file)
{
    return file.width * 3;
}

std::unique_ptr<uint8_t[]> AllocateRows(const JpegFile& file)
{
    if (int64_t{ file.width } * file.height > MAX_PICTURE_PIXELS)
        return nullptr;
    const size_t bytes = static_cast<size_t>(RowBytes(file)) * static_cast<size_t>(file.height);
    return std::unique_ptr<uint8_t[]>(new (std::nothrow) uint8_t[bytes]);
}

/// A file that ends early or is damaged fails, even where the decoder could guess the rest; so do four-channel
/// files, whose inks have no blue, green and red.
bool DecodeRows(tjhandle decoder, const JpegFile& file, uint8_t* rows)
{
    // Thousands of scans in a small file would stall the start.
    const int flags = TJFLAG_STOPONWARNING | TJFLAG_LIMITSCANS;
    return tjDecompress2(decoder, file.data, file.size, rows, file.width, RowBytes(file), file.height, TJPF_BGR,
                         flags) == 0;
}
}

bool LoadJpegImage(CImage& image, const uint8_t* data, uint32_t size)
{
    const Decoder decoder(tjInitDecompress());
    JpegFile file{ data, size, 0, 0 };
    if (!decoder || !HasHuffmanCodes(file) || !ReadHeader(decoder.get(), file))
        return FailWith(ENGINE_LOAD_IMAGE);
    const std::unique_ptr<uint8_t[]> rows = AllocateRows(file);
    if (!rows)
        return FailWith(ENGINE_ALLOCATE_MEMORY);
    if (!DecodeRows(decoder.get(), file, rows.get()))
        return FailWith(ENGINE_LOAD_IMAGE);
    if (!CreatePicture(image, file.width, file.height))
        return false;
    for (int row = 0; row < file.height; ++row)
        ConvertBgrRow(rows.get() + static_cast<ptrdiff_t>(row) * RowBytes(file), image.Row(row), file.width);
    return true;
}
