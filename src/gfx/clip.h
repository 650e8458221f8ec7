#pragma once

#include "gfx/image.h"

#include <cstddef>
#include <cstdint>
#include <optional>

/// What is to be drawn, in pixels: its anchor lands on the target's anchor.
struct SourceBox {
    int32_t anchorX;
    int32_t anchorY;
    int32_t width;
    int32_t height;
};

/// Visible pixels in one direction: where they begin in the source and on the target.
struct Span {
    int32_t source;
    int32_t target;
    int32_t length; ///< 0: nothing is visible
};

/// The part of a source box that falls on the target.
struct DrawArea {
    Span columns;
    Span rows;
};

/// Nothing when the box lies outside the target. Any positions and sizes will do.
std::optional<DrawArea> VisibleArea(const CImage& target, const SourceBox& source);

/// Calls drawRow(source row, source column, target pixels, pixel count) for each visible row, from the top.
template <typename DrawRow>
void ForEachVisibleRow(CImage& target, const SourceBox& source, DrawRow drawRow)
{
    const std::optional<DrawArea> area = VisibleArea(target, source);
    if (!area)
        return;
    const auto& [columns, rows] = *area;
    for (int row = 0; row < rows.length; ++row) {
        uint16_t* pixels = target.Row(rows.target + row) + columns.target;
        drawRow(rows.source + row, columns.source, pixels, static_cast<size_t>(columns.length));
    }
}
