#pragma once

#include <SDL.h>
#include <cstdint>
#include <vector>

/// How the pixels along one side of a scaled picture are made up: each of one pixel of the frame, or of that and the
/// next in the frame.
struct ScaledSide {
    std::vector<uint32_t> first;   ///< the pixel of the frame
    std::vector<uint32_t> weights; ///< the next one's share, as MixPixels has it
};

/// A side of `length` pixels scaled to `shownLength`: magnified sharply to the whole factor, and from there linearly.
ScaledSide ScaleSide(int length, int factor, int shownLength);

/// Rows `begin` to `end` - 1 of a picture, and where the first of them is.
struct PictureRows {
    size_t begin;
    size_t end;
    uint8_t* memory;
    ptrdiff_t rowBytes;

    uint32_t* Row(size_t row) const
    {
        return reinterpret_cast<uint32_t*>(memory + static_cast<ptrdiff_t>(row - begin) * rowBytes);
    }
};

/// Scales RGB565 frames to 32 bits a pixel (0xFFRRGGBB), on the processor.
class CFrameScaler
{
public:
    /// Of frames and of their pictures. Can be out of memory (std::bad_alloc), and then has no sizes.
    void SetSizes(SDL_Point frame, SDL_Point picture);
    SDL_Point FrameSize() const { return frameSize; }
    SDL_Point PictureSize() const { return pictureSize; }
    /// Whether a row of the picture shows any of the frame's rows that `changed` marks.
    bool ShowsAny(const uint8_t* changed, size_t row) const;
    /// Fills those rows of the frame's picture.
    void ScaleRows(const uint16_t* frame, const PictureRows& target);

private:
    /// A row of the frame as wide as the picture, and where that is; nowhere when null.
    struct WideRowPlace {
        size_t row = 0;
        uint32_t* pixels = nullptr;
    };

    /// Vectors of rows that begin with a cache line lie in one each.
    struct alignas(64) CacheLine {
        uint32_t pixels[16];
    };

    /// One that is new is put into `place`.
    const uint32_t* WideRow(const uint16_t* frame, size_t row, uint32_t* place);
    uint32_t* PlaceFor(size_t frameRow, size_t row, const PictureRows& target);
    void Widen(const uint16_t* source, uint32_t* target);

    SDL_Point frameSize = {};
    SDL_Point pictureSize = {};
    ScaledSide columns;
    ScaledSide rows;
    std::vector<uint32_t> offsets;      ///< of the columns, as the kernels want them
    std::vector<uint32_t> convertedRow; ///< a row of the frame in 32 bits
    std::vector<CacheLine> ownRows[2];
    WideRowPlace wideRows[2]; ///< the last even and odd ones
};
