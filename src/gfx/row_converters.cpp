#include "gfx/display.h"
#include "gfx/row_kernels.h"

#include <cstdint>

namespace
{
/// Applies kernel(target row, pixel count, source row) to each row, in whole groups of four pixels.
template <typename Kernel>
void ConvertRows(const CImage& image, void* surface, int rowSkip, Kernel kernel)
{
    const int count = image.width / 4 * 4;
    uint8_t* target = static_cast<uint8_t*>(surface);
    for (int row = 0; row < image.height; ++row) {
        kernel(reinterpret_cast<uint16_t*>(target), static_cast<size_t>(count), image.Row(row));
        target += 2 * count + rowSkip;
    }
}
}

void ConvertRowsCopy(const CImage& image, void* surface, int rowSkip)
{
    ConvertRows(image, surface, rowSkip, BestRowKernels().copy);
}

void ConvertRows555(const CImage& image, void* surface, int rowSkip)
{
    ConvertRows(image, surface, rowSkip, BestRowKernels().toRgb555);
}
