#include "gfx/image.h"

#include "gfx/clip.h"
#include "gfx/row_kernels.h"

namespace
{
SourceBox BoxOf(const CImage& image)
{
    return { image.x, image.y, image.width, image.height };
}

/// Applies kernel(target pixels, count, source pixels, weight...) to each visible row.
template <typename Kernel, typename... Weight>
void DrawRows(CImage& target, const CImage& source, Kernel kernel, Weight... weight)
{
    ForEachVisibleRow(target, BoxOf(source), [&](int row, int column, uint16_t* pixels, size_t count) {
        kernel(pixels, count, source.Row(row) + column, weight...);
    });
}

/// Applies kernel(target pixels, count, source pixels, source alpha, scale...) to each visible row. A kernel may read
/// three values past the row's end: behind the last row lies the plane's slack.
template <typename Kernel, typename... Scale>
void DrawAlphaRows(CImage& target, const CImage& source, Kernel kernel, Scale... scale)
{
    ForEachVisibleRow(target, BoxOf(source), [&](int row, int column, uint16_t* pixels, size_t count) {
        kernel(pixels, count, source.Row(row) + column, source.AlphaRow(row) + column, scale...);
    });
}

/// The weight, out of 32, of what an image of that opacity is blended with.
int OtherWeight(uint32_t opacity)
{
    return static_cast<int>((256 - opacity) >> 3);
}
}

void BlitCopy(CImage& target, const CImage& source)
{
    DrawRows(target, source, BestRowKernels().copy);
}

void BlitColorKey(CImage& target, const CImage& source)
{
    DrawRows(target, source, BestRowKernels().colorKey);
}

void BlitAdd(CImage& target, const CImage& source)
{
    DrawRows(target, source, BestRowKernels().add);
}

void BlitSub(CImage& target, const CImage& source)
{
    DrawRows(target, source, BestRowKernels().sub);
}

void BlitAlpha(CImage& target, const CImage& source)
{
    DrawAlphaRows(target, source, BestRowKernels().alpha);
}

void BlitAlphaOpacity(CImage& target, const CImage& source)
{
    const int scale = static_cast<int>(source.opacity >> 3) + 1;
    DrawAlphaRows(target, source, BestRowKernels().alphaOpacity, scale);
}

void BlitOpacityColorKey(CImage& target, const CImage& source)
{
    if (source.opacity < 8)
        return;
    const int targetWeight = OtherWeight(source.opacity);
    DrawRows(target, source, BestRowKernels().opacityColorKey, targetWeight);
}

void BlitFadeToBlack(CImage& target, const CImage& source)
{
    const int blackWeight = OtherWeight(source.opacity);
    DrawRows(target, source, BestRowKernels().fadeToBlack, blackWeight);
}

void BlitGlyphSmooth(CImage& target, const GlyphView& glyph)
{
    const SourceBox box{ glyph.offsetX, glyph.offsetY, glyph.width, glyph.height };
    const RowKernels::GlyphRow kernel = BestRowKernels().glyph;
    ForEachVisibleRow(target, box, [&](int row, int column, uint16_t* pixels, size_t count) {
        const uint8_t* coverage = glyph.bits + static_cast<ptrdiff_t>(row) * glyph.width + column;
        kernel(pixels, count, coverage, glyph.colour);
    });
}
