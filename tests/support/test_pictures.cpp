#include "support/test_pictures.h"

#include "actors/snake_pictures.h"
#include "actors/status_bar_pictures.h"
#include "game/pond_pictures.h"
#include "menu/menu_pictures.h"
#include "support/file_bytes.h"

#include <turbojpeg.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <span>

namespace
{
constexpr int BLOCK = 8; ///< pixels that a JPEG file codes together

/// Numbers that are the same on every system.
using Noise = std::linear_congruential_engine<uint32_t, 1664525, 1013904223, 0>;

uint32_t Below(uint32_t limit, Noise& noise)
{
    return (noise() >> 16) % limit;
}

/// Plain blocks, each of a colour of its own, in the middle of what RGB565 takes for one colour: however a decoder
/// rounds, the picture is the same.
std::string BlockJpeg(Noise& noise, int width, int height)
{
    const int columns = (width + BLOCK - 1) / BLOCK;
    std::vector<uint8_t> colours(static_cast<size_t>(columns * (height + BLOCK - 1) / BLOCK + columns) * 3);
    for (size_t i = 0; i < colours.size(); ++i)
        colours[i] = static_cast<uint8_t>(i % 3 == 1 ? Below(64, noise) * 4 + 2 : Below(32, noise) * 8 + 4);
    std::vector<uint8_t> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const auto* colour = &colours[static_cast<size_t>(y / BLOCK * columns + x / BLOCK) * 3];
            pixels.insert(pixels.end(), colour, colour + 3);
        }
    return EncodeJpeg(pixels, width, height, TJPF_BGR);
}

/// Blue, green and red of a pixel: a third black, a third white, which is the colour key and a mask's full opacity,
/// and the rest any grey for a mask, any colour else.
void AppendPixel(std::string& file, Noise& noise, bool isMask, bool isWhite)
{
    const uint32_t kind = isWhite ? 1 : Below(3, noise);
    const uint32_t colour = kind == 0 ? 0 : kind == 1 ? 0xFFFFFF : Below(1 << 16, noise) * 0x101;
    file += LittleEndian(isMask ? (colour & 0xFF) * 0x010101 : colour).substr(0, 3);
}

/// 24 bits a pixel, bottom row first, each row's bytes a multiple of four.
std::string NoiseBmp(Noise& noise, int width, int height, bool isMask)
{
    std::string file = BmpHeader(width, height, 24, 0);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            AppendPixel(file, noise, isMask, y == 0 && x == width - 1); // a corner that tests can rely on
        file.append(static_cast<size_t>(width % 4), '\0');
    }
    return file;
}

void WritePicture(const TempFolder& folder, const char* name, int number, const PictureSize& size, bool isMask)
{
    std::string path = PicturePath(name, number).data();
    std::replace(path.begin(), path.end(), '\\', '/');
    uint32_t seed = 1; // another one for each picture
    for (const char c : path)
        seed = seed * 31 + static_cast<uint8_t>(c);
    Noise noise(seed);
    folder.Write(path, path.ends_with(".jpg") ? BlockJpeg(noise, size.width, size.height)
                                              : NoiseBmp(noise, size.width, size.height, isMask));
}
}

std::string EncodeJpeg(const std::vector<uint8_t>& pixels, int width, int height, int pixelFormat)
{
    const int sampling = pixelFormat == TJPF_GRAY ? TJSAMP_GRAY : TJSAMP_444;
    tjhandle codec = tjInitCompress();
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    tjCompress2(codec, pixels.data(), width, 0, height, pixelFormat, &bytes, &size, sampling, 100, 0);
    std::string file(reinterpret_cast<const char*>(bytes), size);
    tjFree(bytes);
    tjDestroy(codec);
    return file;
}

TestPictures::TestPictures()
{
    const std::span<const PictureRow> tables[] = { pondPictures, snakePictures, statusPictures, menuPictures };
    for (const auto& table : tables)
        for (const PictureRow& row : table)
            for (int i = 0; i < row.count; ++i) {
                WritePicture(folder, row.file, i, SizeOf(row, i), false);
                if (row.mask)
                    WritePicture(folder, row.mask, i, SizeOf(row, i), true);
            }
}
