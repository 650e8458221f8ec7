#include "game/water.h"

#include "game/geometry.h"
#include "game/water_rows.h"

#include <algorithm>
#include <utility>

WaterState water{};

namespace
{
/// A rectangle of the field.
struct Block {
    int x;
    int y;
    int width;
    int height;
};

/// The picture, and where its pixels are shown.
struct View {
    const uint16_t* picture;
    uint16_t* target; ///< of the field's top-left sample, were it shown
    ptrdiff_t stride; ///< of the target

    uint16_t* TargetAt(int x, int y) const { return target + y * stride + x; }
};

ptrdiff_t SampleAt(int x, int y)
{
    return static_cast<ptrdiff_t>(y) * water.fieldWidth + x;
}

/// A processor's packed shift treats larger counts as 15: nothing but the sign is left.
int ClampShift(int shift)
{
    return static_cast<int>(std::min(static_cast<uint32_t>(shift), 15U));
}

WaterRows RowsOf(const Block& block)
{
    const ptrdiff_t start = SampleAt(block.x, block.y);
    return { water.current + start, water.previous + start, water.fieldWidth,
             block.width,           block.height,           ClampShift(water.dampingShift) };
}

void StepBlock(const Block& block)
{
    BestWaterKernels().stepRows(RowsOf(block));
}

void ShowBlock(const View& view, const Block& block)
{
    BestWaterKernels().showRows(RowsOf(block),
                                { view.picture, water.fieldWidth * water.fieldHeight,
                                  static_cast<int>(SampleAt(block.x, block.y)), ClampShift(water.refractionShift),
                                  view.TargetAt(block.x, block.y), view.stride });
}

/// Shows the picture as it is.
void CopyBlock(const View& view, const Block& block)
{
    for (int y = block.y; y < block.y + block.height; ++y)
        std::copy_n(view.picture + SampleAt(block.x, y), block.width, view.TargetAt(block.x, y));
}

/// The whole groups of four samples in the block, but for those of the field's first and last row, which stay calm.
Block WavesIn(const Block& block)
{
    const int left = std::min((block.x + 3) / 4 * 4, block.x + block.width);
    const int right = std::max(left, (block.x + block.width) / 4 * 4);
    const int top = std::min(std::max(block.y, 1), block.y + block.height);
    const int bottom = std::max(top, std::min(block.y + block.height, water.fieldHeight - 1));
    return { left, top, right - left, bottom - top };
}

/// Does what lies around `inner` in `outer`.
template <class Work>
void ForBlocksAround(const Block& inner, const Block& outer, Work work)
{
    const int right = inner.x + inner.width;
    const int bottom = inner.y + inner.height;
    work({ outer.x, outer.y, outer.width, inner.y - outer.y });
    work({ outer.x, inner.y, inner.x - outer.x, inner.height });
    work({ right, inner.y, outer.x + outer.width - right, inner.height });
    work({ outer.x, bottom, outer.width, outer.y + outer.height - bottom });
}
}

void WaterInit(CImage& first, CImage& second, int dampingShift, int refractionShift)
{
    water.fieldWidth = first.width;
    water.fieldHeight = first.height;
    water.rowBytes = 2 * first.width;
    water.fieldBytes = 2 * first.width * first.height;
    water.dampingShift = dampingShift;
    water.refractionShift = refractionShift;
    water.current = reinterpret_cast<int16_t*>(first.pixels);
    water.previous = reinterpret_cast<int16_t*>(second.pixels);
    first.Fill(0);
    second.Fill(0);
}

void DisturbWater(int x, int y, int radius, int depth)
{
    // 64 bits: no position and radius can overflow them.
    const int64_t left = std::max<int64_t>(int64_t{ x } - radius, 0);
    const int64_t right = std::min<int64_t>(int64_t{ x } + radius, water.fieldWidth);
    const int64_t top = std::max<int64_t>(int64_t{ y } - radius, 1);
    const int64_t bottom = std::min<int64_t>(int64_t{ y } + radius, water.fieldHeight - 1);
    for (int64_t py = top; py < bottom; ++py)
        for (int64_t px = left; px < right; ++px)
            if ((px - x) * (px - x) + (py - y) * (py - y) < int64_t{ radius } * radius)
                water.current[py * water.fieldWidth + px] = static_cast<int16_t>(depth);
}

void SplashCell(int x, int y, const CellSplash& splash)
{
    DisturbWater(x + CELL_SIZE / 2, y + CELL_SIZE / 2, splash.radius, splash.depth);
}

void WaterFrame(const uint16_t* source, int x0, int y0, int width, int height, uint16_t* target, int targetX,
                int targetY, int targetPitch)
{
    const ptrdiff_t stride = targetPitch / static_cast<ptrdiff_t>(sizeof(uint16_t));
    const View view = { source, target + (targetY - y0) * stride + targetX - x0, stride };
    const Block shown = { x0, y0, width, height };
    const Block waves = WavesIn(shown);
    ForBlocksAround(waves, shown, [&](const Block& block) { CopyBlock(view, block); });
    ForBlocksAround(waves, WavesIn({ 0, 0, water.fieldWidth, water.fieldHeight }), StepBlock);
    ShowBlock(view, waves);
    std::swap(water.current, water.previous);
}
