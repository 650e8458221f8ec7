#include "platform/sdl/frame_scaler.h"

#include "platform/sdl/frame_fit.h"
#include "platform/sdl/scale_kernels.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

ScaledSide ScaleSide(int length, int factor, int shownLength)
{
    ScaledSide side;
    const long magnified = static_cast<long>(length) * factor;
    for (int i = 0; i < shownLength; ++i) {
        // Between the centres of two magnified pixels, in 256ths as graphics cards reckon.
        const long centre = std::lround((i + 0.5) * static_cast<double>(magnified) / shownLength * 256 - 128);
        const long first = std::max(centre >> 8, 0L) / factor;
        const bool isBetween = std::min((centre >> 8) + 1, magnified - 1) / factor != first;
        side.first.push_back(static_cast<uint32_t>(first));
        const uint32_t weight = isBetween ? static_cast<uint32_t>(centre & 255) : 0;
        side.weights.push_back(weight * 128 * 0x10001);
    }
    return side;
}

void CFrameScaler::SetSizes(SDL_Point frame, SDL_Point picture)
{
    frameSize = pictureSize = {};
    const int factor = NearestWholeFactor(frame.x, picture.x);
    columns = ScaleSide(frame.x, factor, picture.x);
    rows = ScaleSide(frame.y, factor, picture.y);
    offsets.resize(columns.first.size());
    BestScaleKernels().findOffsets(columns.first.data(), offsets.data(), offsets.size());
    convertedRow.assign(static_cast<size_t>(frame.x) + ScaleKernels::MOST_LANES + 1, 0);
    for (std::vector<CacheLine>& row : ownRows)
        row.assign(static_cast<size_t>(picture.x) / std::size(CacheLine().pixels) + 1, {});
    frameSize = frame;
    pictureSize = picture;
}

bool CFrameScaler::ShowsAny(const uint8_t* changed, size_t row) const
{
    const uint32_t first = rows.first[row];
    return changed[first] || (rows.weights[row] != 0 && changed[first + 1]);
}

void CFrameScaler::ScaleRows(const uint16_t* frame, const PictureRows& target)
{
    const size_t count = static_cast<size_t>(pictureSize.x);
    wideRows[0] = wideRows[1] = {}; // the frame may have changed, and the target gone
    for (size_t row = target.begin; row < target.end; ++row) {
        const uint32_t first = rows.first[row];
        const uint32_t weight = rows.weights[row];
        uint32_t* const pixels = target.Row(row);
        const uint32_t* const upper = WideRow(frame, first, PlaceFor(first, row, target));
        if (weight == 0) {
            if (upper != pixels)
                std::memcpy(pixels, upper, count * sizeof(uint32_t));
            continue;
        }
        const uint32_t* const lower = WideRow(frame, first + 1, PlaceFor(first + 1, row, target));
        BestScaleKernels().mix(upper, lower, weight, pixels, count);
    }
}

/// Where the picture is to show a row of the frame as it is, from `row` on; else a row of our own.
uint32_t* CFrameScaler::PlaceFor(size_t frameRow, size_t row, const PictureRows& target)
{
    while (row < target.end && rows.first[row] < frameRow)
        ++row;
    const bool isPlain = row < target.end && rows.first[row] == frameRow && rows.weights[row] == 0;
    return isPlain ? target.Row(row) : ownRows[frameRow % 2].data()->pixels;
}

const uint32_t* CFrameScaler::WideRow(const uint16_t* frame, size_t row, uint32_t* place)
{
    WideRowPlace& wide = wideRows[row % 2];
    if (!wide.pixels || wide.row != row) {
        wide = { row, place };
        Widen(frame + row * static_cast<size_t>(frameSize.x), wide.pixels);
    }
    return wide.pixels;
}

void CFrameScaler::Widen(const uint16_t* source, uint32_t* target)
{
    const ScaleKernels& kernels = BestScaleKernels();
    const size_t count = static_cast<size_t>(pictureSize.x);
    const size_t sourceCount = static_cast<size_t>(frameSize.x);
    if (count == sourceCount)
        return kernels.convert(source, target, count);
    kernels.convert(source, convertedRow.data(), sourceCount);
    const bool isSharp = count % sourceCount == 0;
    const StretchTable table = { columns.first.data(), offsets.data(), columns.weights.data() };
    (isSharp ? kernels.repeat : kernels.stretch)(convertedRow.data(), table, target, count);
}
