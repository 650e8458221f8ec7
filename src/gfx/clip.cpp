#include "gfx/clip.h"

#include <algorithm>

namespace
{
// In 64 bits, since positions and anchors may be anywhere in 32.
Span VisibleSpan(int64_t targetAnchor, int64_t targetSize, int64_t sourceAnchor, int64_t sourceSize)
{
    const int64_t position = targetAnchor - sourceAnchor;
    const int64_t first = std::max<int64_t>(0, -position);
    const int64_t end = std::min(sourceSize, targetSize - position);
    if (first >= end)
        return { 0, 0, 0 };
    return { static_cast<int32_t>(first), static_cast<int32_t>(position + first), static_cast<int32_t>(end - first) };
}
}

std::optional<DrawArea> VisibleArea(const CImage& target, const SourceBox& source)
{
    const Span columns = VisibleSpan(target.x, target.width, source.anchorX, source.width);
    const Span rows = VisibleSpan(target.y, target.height, source.anchorY, source.height);
    if (columns.length == 0 || rows.length == 0)
        return std::nullopt;
    return DrawArea{ columns, rows };
}
