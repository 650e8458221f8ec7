#include "support/test_pictures.h"

#include "actors/snake_pictures.h"
#include "actors/status_bar_pictures.h"
#include "game/pond_pictures.h"
#include "menu/menu_pictures.h"

#include <turbojpeg.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <ranges>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
constexpr uint8_t GREY = 128;

/// Blue, green and red of a JPEG picture: differ from one to the next, also as RGB565 and after JPEG's rounding.
std::array<uint8_t, 3> ColourOf(int picture)
{
    const auto level = [](int step) { return static_cast<uint8_t>(16 * (step % 16) + 12); };
    return { GREY, level(picture / 16), level(picture) };
}

std::string PlainJpeg(const std::array<uint8_t, 3>& colour, int width, int height)
{
    std::vector<uint8_t> pixels;
    for (int i = 0; i < width * height; ++i)
        pixels.insert(pixels.end(), colour.begin(), colour.end());
    tjhandle codec = tjInitCompress();
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    const bool done =
        tjCompress2(codec, pixels.data(), width, 0, height, TJPF_BGR, &bytes, &size, TJSAMP_444, 100, 0) == 0;
    const std::string file(reinterpret_cast<const char*>(bytes), size);
    tjFree(bytes);
    tjDestroy(codec);
    if (!done)
        throw std::runtime_error("no test picture");
    return file;
}

void AppendNumber(std::string& file, uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        file += static_cast<char>(value >> 8 * i & 0xFF);
}

/// 24 bits a pixel, bottom row first.
std::string GreyBmp(int width, int height)
{
    constexpr uint32_t HEADER_BYTES = 54;
    const uint32_t rowBytes = (static_cast<uint32_t>(width) * 3 + 3) & ~3U;
    const uint32_t pixelBytes = rowBytes * static_cast<uint32_t>(height);
    std::string file = "BM";
    AppendNumber(file, HEADER_BYTES + pixelBytes, 4);
    AppendNumber(file, 0, 4);
    AppendNumber(file, HEADER_BYTES, 4);
    AppendNumber(file, 40, 4);
    AppendNumber(file, static_cast<uint32_t>(width), 4);
    AppendNumber(file, static_cast<uint32_t>(height), 4);
    AppendNumber(file, 1, 2);
    AppendNumber(file, 24, 2);
    AppendNumber(file, 0, 4);
    AppendNumber(file, pixelBytes, 4);
    file.append(16, '\0');
    file.append(pixelBytes, static_cast<char>(GREY));
    return file;
}
}

TestPictures::TestPictures()
{
    const std::span<const PictureRow> tables[] = { pondPictures, snakePictures, statusPictures, menuPictures };
    std::set<std::string> made; // owners share pictures
    for (const PictureRow& row : std::views::join(tables)) {
        for (int i = 0; i < row.count; ++i) {
            const auto [width, height] = SizeOf(row, i);
            const auto write = [&](const char* file) {
                std::string path = PicturePath(file, i).data();
                std::ranges::replace(path, '\\', '/');
                if (made.insert(path).second)
                    folder.Write(path, path.ends_with(".jpg")
                                           ? PlainJpeg(ColourOf(static_cast<int>(made.size())), width, height)
                                           : GreyBmp(width, height));
            };
            write(row.file);
            if (row.mask)
                write(row.mask);
        }
    }
}
