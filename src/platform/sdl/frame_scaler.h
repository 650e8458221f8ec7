#pragma once

#include <SDL.h>
#include <cstdint>
#include <vector>

/// How the pixels along one side of a scaled picture are made up: each of one pixel of the frame, or of that and the
/// next in the frame.
struct ScaledSide {
    std::vector<uint32_t> first;   ///< the pixel of the frame
    std::vector<uint32_t> weights; ///< the next one's share, in 256ths
};

/// A side of `length` pixels scaled to `shownLength`: magnified sharply to the whole factor, and from there linearly.
ScaledSide ScaleSide(int length, int factor, int shownLength);

/// Scales RGB565 frames to 32 bits a pixel (0xFFRRGGBB), on the processor.
class CFrameScaler
{
public:
    /// Of frames and of their pictures. Can be out of memory (std::bad_alloc), and then has no sizes.
    void SetSizes(SDL_Point frame, SDL_Point picture);
    SDL_Point FrameSize() const { return frameSize; }
    SDL_Point PictureSize() const { return pictureSize; }
    /// Whether a row of the picture shows any of the frame's rows that `changed` marks.
    bool ShowsAny(const uint8_t* changed, int row) const;
    /// Scales rows `begin` to `end` - 1 of the picture, the first of which goes to `target`.
    void ScaleRows(const uint16_t* frame, int begin, int end, uint8_t* target, int targetRowBytes);

private:
    static constexpr size_t NO_ROW = SIZE_MAX;

    const uint32_t* WideRow(const uint16_t* frame, size_t row);

    SDL_Point frameSize = {};
    SDL_Point pictureSize = {};
    ScaledSide columns;
    ScaledSide rows;
    std::vector<uint32_t> convertedRow; ///< a row of the frame in 32 bits
    std::vector<uint32_t> wideRows[2];  ///< rows of the frame as wide as the picture: the last even and odd ones
    size_t wideRowNumbers[2] = { NO_ROW, NO_ROW };
};
