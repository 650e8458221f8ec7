#include "gfx/display.h"
#include "gfx/rgb565.h"

#include <cstdint>
#include <cstring>

namespace
{
/// Applies kernel(source row, target row, pixel count) to each row, in whole groups of four pixels.
template <typename Kernel>
void ConvertRows(const CImage& image, void* surface, int rowSkip, Kernel kernel)
{
    const int count = image.width / 4 * 4;
    uint8_t* target = static_cast<uint8_t*>(surface);
    for (int row = 0; row < image.height; ++row) {
        kernel(image.Row(row), reinterpret_cast<uint16_t*>(target), static_cast<size_t>(count));
        target += 2 * count + rowSkip;
    }
}

/// Red and green move down one bit and the lowest green bit is dropped.
constexpr uint16_t Rgb555(uint16_t pixel)
{
    return static_cast<uint16_t>(((pixel >> 1) & 0xFFE0) | (pixel & BLUE_MASK));
}
}

void ConvertRowsCopy(const CImage& image, void* surface, int rowSkip)
{
    ConvertRows(image, surface, rowSkip, [](const uint16_t* source, uint16_t* target, size_t count) {
        std::memcpy(target, source, count * sizeof(uint16_t));
    });
}

void ConvertRows555(const CImage& image, void* surface, int rowSkip)
{
    ConvertRows(image, surface, rowSkip, [](const uint16_t* source, uint16_t* target, size_t count) {
        for (size_t i = 0; i < count; ++i)
            target[i] = Rgb555(source[i]);
    });
}
