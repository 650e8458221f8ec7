#include "platform/sdl/frame_scaler.h"

#include "platform/sdl/frame_fit.h"
#include "platform/sdl/scale_kernels.h"

#include <algorithm>
#include <cmath>
#include <cstring>

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
        side.weights.push_back(isBetween ? static_cast<uint32_t>(centre & 255) : 0);
    }
    return side;
}

void CFrameScaler::SetSizes(SDL_Point frame, SDL_Point picture)
{
    frameSize = pictureSize = {};
    const int factor = NearestWholeFactor(frame.x, picture.x);
    columns = ScaleSide(frame.x, factor, picture.x);
    rows = ScaleSide(frame.y, factor, picture.y);
    convertedRow.assign(static_cast<size_t>(frame.x) + ScaleKernels::MOST_LANES + 1, 0);
    for (std::vector<uint32_t>& row : wideRows)
        row.assign(static_cast<size_t>(picture.x), 0);
    frameSize = frame;
    pictureSize = picture;
}

bool CFrameScaler::ShowsAny(const uint8_t* changed, int row) const
{
    const uint32_t first = rows.first[static_cast<size_t>(row)];
    return changed[first] || (rows.weights[static_cast<size_t>(row)] != 0 && changed[first + 1]);
}

void CFrameScaler::ScaleRows(const uint16_t* frame, int begin, int end, uint8_t* target, int targetRowBytes)
{
    const ScaleKernels& kernels = BestScaleKernels();
    const size_t count = static_cast<size_t>(pictureSize.x);
    std::fill(std::begin(wideRowNumbers), std::end(wideRowNumbers), NO_ROW); // the frame may have changed
    for (int row = begin; row < end; ++row, target += targetRowBytes) {
        const uint32_t first = rows.first[static_cast<size_t>(row)];
        const uint32_t weight = rows.weights[static_cast<size_t>(row)];
        const uint32_t* const upper = WideRow(frame, first);
        if (weight == 0)
            std::memcpy(target, upper, count * sizeof(uint32_t));
        else
            kernels.mix(upper, WideRow(frame, first + 1), weight, reinterpret_cast<uint32_t*>(target), count);
    }
}

const uint32_t* CFrameScaler::WideRow(const uint16_t* frame, size_t row)
{
    const ScaleKernels& kernels = BestScaleKernels();
    const size_t place = row % 2;
    if (wideRowNumbers[place] != row) {
        const size_t width = static_cast<size_t>(frameSize.x);
        kernels.convert(frame + row * width, convertedRow.data(), width);
        kernels.stretch(convertedRow.data(), columns.first.data(), columns.weights.data(), wideRows[place].data(),
                        wideRows[place].size());
        wideRowNumbers[place] = row;
    }
    return wideRows[place].data();
}
