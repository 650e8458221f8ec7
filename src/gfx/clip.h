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

/// The part of a source box that falls on the target.
struct DrawArea {
    int32_t sourceColumn;
    int32_t sourceRow;
    int32_t targetColumn;
    int32_t targetRow;
    int32_t width;
    int32_t height;
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
    for (int row = 0; row < area->height; ++row) {
        uint16_t* pixels = target.Row(area->targetRow + row) + area->targetColumn;
        drawRow(area->sourceRow + row, area->sourceColumn, pixels, static_cast<size_t>(area->width));
    }
}
