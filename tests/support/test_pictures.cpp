#include "support/test_pictures.h"

#include <turbojpeg.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
constexpr int ONE_FILE = 0;

/// A file, or `count` files whose pattern takes the numbers 1 to `count`.
struct PictureRow {
    const char* pattern;
    int count;
    int width;
    int height;
};
constexpr PictureRow pictures[] = {
    // Pond
    { "bg0.jpg", ONE_FILE, 480, 480 },
    { "bean_red.jpg", ONE_FILE, 16, 16 },
    { "bean_green.jpg", ONE_FILE, 16, 16 },
    { "bean_blue.jpg", ONE_FILE, 16, 16 },
    { "bean_orange.jpg", ONE_FILE, 16, 16 },
    { "bean_purple.jpg", ONE_FILE, 16, 16 },
    { "bean_golden.jpg", ONE_FILE, 16, 16 },
    { "stone.jpg", ONE_FILE, 16, 16 },
    { "mask.bmp", ONE_FILE, 16, 16 },
    { "shadow.jpg", ONE_FILE, 16, 16 },
    { "light.jpg", ONE_FILE, 160, 160 },
    { "light%d.jpg", 8, 30, 30 },
    { "light%d_.bmp", 8, 30, 30 },
    { "add5.jpg", ONE_FILE, 32, 16 },
    { "add10.jpg", ONE_FILE, 32, 16 },
    { "add15.jpg", ONE_FILE, 32, 16 },
    { "add30.jpg", ONE_FILE, 32, 16 },
    { "add35.jpg", ONE_FILE, 32, 16 },
    { "add40.jpg", ONE_FILE, 32, 16 },
    { "add45.jpg", ONE_FILE, 32, 16 },
    { "lifeup.jpg", ONE_FILE, 32, 16 },
    { "add_.bmp", ONE_FILE, 32, 16 },
    { "bean_red%d.jpg", 14, 32, 32 },
    { "bean_green%d.jpg", 14, 32, 32 },
    { "bean_blue%d.jpg", 14, 32, 32 },
    { "bean_orange%d.jpg", 14, 32, 32 },
    { "bean_purple%d.jpg", 14, 32, 32 },
    { "mask%d.bmp", 14, 32, 32 },
    { "Moon%d.jpg", 2, 130, 130 },
    { "Moon%d_.bmp", 2, 130, 130 },
    // Snakes
    { "snakebody.jpg", ONE_FILE, 16, 16 },
    { "snakebody2nd.jpg", ONE_FILE, 16, 16 },
    { "snakeeye%02d.jpg", 24, 16, 16 },
    { "snakeeye%02d_.bmp", 24, 16, 16 },
    { "bumpeye%d.jpg", 4, 24, 24 },
    { "bumpeye%d_.bmp", 4, 24, 24 },
    { "ArrowUp.bmp", ONE_FILE, 16, 16 },
    { "ArrowDown.bmp", ONE_FILE, 16, 16 },
    { "ArrowLeft.bmp", ONE_FILE, 16, 16 },
    { "ArrowRight.bmp", ONE_FILE, 16, 16 },
    // Status bar
    { "LeftPanel.bmp", ONE_FILE, 160, 480 },
    { "beanred.bmp", ONE_FILE, 11, 11 },
    { "beangreen.bmp", ONE_FILE, 11, 11 },
    { "beanblue.bmp", ONE_FILE, 11, 11 },
    { "beanorange.bmp", ONE_FILE, 11, 11 },
    { "beanpurple.bmp", ONE_FILE, 11, 11 },
    { "heart.bmp", ONE_FILE, 14, 12 },
    { "Progress.jpg", ONE_FILE, 19, 313 },
    { "MessagePaused.jpg", ONE_FILE, 160, 90 },
    { "MessageConfirm.jpg", ONE_FILE, 160, 90 },
    { "MessageLevelCleared.jpg", ONE_FILE, 160, 90 },
    { "MessageNextLevel.jpg", ONE_FILE, 160, 110 },
    { "Help%d.jpg", 4, 500, 390 },
    { "MessageGameOver.jpg", ONE_FILE, 160, 90 },
    // Menu
    { "MainMenu.jpg", ONE_FILE, 640, 480 },
    { "MainMenuHomepage.jpg", ONE_FILE, 245, 22 },
    { "MainMenuItems.jpg", ONE_FILE, 651, 36 },
    { "Options.jpg", ONE_FILE, 320, 230 },
    { "OptionsItems.jpg", ONE_FILE, 216, 23 },
    { "Ranking.jpg", ONE_FILE, 320, 310 },
};

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

std::string Numbered(const char* pattern, int number)
{
    char name[64];
    std::snprintf(name, sizeof name, pattern, number);
    return name;
}
}

TestPictures::TestPictures()
{
    int made = 0;
    for (const PictureRow& row : pictures) {
        const std::string pattern = std::string("Dat/Image/") + row.pattern;
        for (int number = 1; number <= std::max(row.count, 1); ++number) {
            const std::string path = row.count == ONE_FILE ? pattern : Numbered(pattern.c_str(), number);
            folder.Write(path, path.ends_with(".jpg") ? PlainJpeg(ColourOf(made++), row.width, row.height)
                                                      : GreyBmp(row.width, row.height));
        }
    }
}
