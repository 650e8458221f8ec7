#pragma once

#include "gfx/rgb565.h"
#include "platform/gdi.h"

#include <cstddef>
#include <cstdint>

class CImage;

/// Draws `source` onto `target`, placed and limited by the fields of both.
using BlitRoutine = void (*)(CImage& target, const CImage& source);

// The blit routines. The source's top-left pixel lands at (target.x - source.x, target.y - source.y); what lies
// outside the target is clipped away.

void BlitCopy(CImage& target, const CImage& source);            ///< replaces
void BlitColorKey(CImage& target, const CImage& source);        ///< replaces, except where the source is COLOR_KEY
void BlitAdd(CImage& target, const CImage& source);             ///< saturating add per channel
void BlitSub(CImage& target, const CImage& source);             ///< saturating subtract per channel
void BlitAlpha(CImage& target, const CImage& source);           ///< blends by the alpha plane
void BlitAlphaOpacity(CImage& target, const CImage& source);    ///< blends by alpha plane times opacity
void BlitOpacityColorKey(CImage& target, const CImage& source); ///< blends by opacity, except at COLOR_KEY
void BlitFadeToBlack(CImage& target, const CImage& source);     ///< replaces, darkened by opacity

/// As a position or size argument: the value stored in the image.
constexpr int KEEP = static_cast<int>(0x80000000);
constexpr int ValueOr(int argument, int stored)
{
    return argument == KEEP ? stored : argument;
}

/// A plane of RGB565 pixels with an optional plane of alpha values 0 to 31, and the way it is drawn.
/// Rows are padded to whole groups of four pixels, and owned planes have slack behind the last row, so that groups
/// need no bounds checks.
class CImage
{
public:
    CImage() = default;
    ~CImage() { Free(); }
    CImage(const CImage&) = delete;
    CImage& operator=(const CImage&) = delete;

    /// A black image of that size; anchors 0; alpha, opacity and blit stay. False: ENGINE_ALLOCATE_MEMORY.
    bool Create(int width, int height);
    /// An alpha plane for the current size, all 0. False: ENGINE_ALLOCATE_MEMORY.
    bool CreateAlpha();
    /// Makes this image a window onto part of `parent`, sharing its planes; it must not outlive the parent.
    /// The rectangle is in the parent's pixels and is cut to it; what is cut off at the left and top becomes a
    /// negative anchor. Nothing left: false, ENGINE_CREATE_IMAGE.
    bool CreateView(CImage& parent, int viewX, int viewY, int viewWidth, int viewHeight);
    /// Makes this image an independent copy; with an alpha plane, it also takes the source's blit routine.
    /// An alpha plane that this image already has is reused and must be at least as large as the source's.
    bool Copy(CImage& source);
    /// Takes over the overlapping part of the source's alpha plane.
    void CopyAlpha(const CImage& source);
    /// Sets every pixel, padding excluded.
    void Fill(uint16_t colour);
    /// Draws this image onto `target` with its blit routine. Any argument may be KEEP. The anchor is the point of
    /// this image that lands on (targetX, targetY); a size beyond the image's own is cut to it.
    void Draw(CImage& target, int targetX = KEEP, int targetY = KEEP, int anchorX = KEEP, int anchorY = KEEP,
              int drawWidth = KEEP, int drawHeight = KEEP);
    /// Copies this image to a device context. x and y KEEP mean 0, the rest the image's own values. False:
    /// ENGINE_BLIT_GDI.
    bool DrawToDC(HDC context, int targetX = KEEP, int targetY = KEEP, int sourceX = KEEP, int sourceY = KEEP,
                  int drawWidth = KEEP, int drawHeight = KEEP) const;
    /// Releases the planes this image owns and returns it to the empty state.
    void Free();

    /// The first pixel of a row.
    uint16_t* Row(int row) { return pixels + static_cast<ptrdiff_t>(row) * (pitch / 2); }
    const uint16_t* Row(int row) const { return pixels + static_cast<ptrdiff_t>(row) * (pitch / 2); }
    /// The first alpha value of a row.
    uint8_t* AlphaRow(int row) { return alpha + static_cast<ptrdiff_t>(row) * (pitch / 2); }
    const uint8_t* AlphaRow(int row) const { return alpha + static_cast<ptrdiff_t>(row) * (pitch / 2); }

    int32_t x = 0; ///< anchor: as a source, drawn this much further left; as a target, the default position
    int32_t y = 0;
    int32_t width = 0;
    int32_t height = 0;
    int32_t pitch = 0;           ///< bytes from row to row, a multiple of 8; a view keeps its parent's
    uint16_t* pixels = nullptr;  ///< RGB565
    uint8_t* alpha = nullptr;    ///< 0 transparent to 31 opaque, rows of pitch / 2; null when absent
    uint32_t opacity = 0;        ///< 0 to 255, for the routines that use it
    bool pixelsBorrowed = false; ///< the plane belongs to another image
    bool alphaBorrowed = false;
    BlitRoutine blit = BlitCopy; ///< used when this image is the source
};

/// A rendered character to draw: the pen is at the target's anchor.
struct GlyphView {
    int32_t offsetX; ///< what the anchor is for images
    int32_t offsetY;
    int32_t width; ///< row length in bytes
    int32_t height;
    int32_t advance;     ///< pixels to the next pen position
    const uint8_t* bits; ///< coverage, a byte a pixel, 0 empty to 16 full, rows of `width`; borrowed
    uint16_t colour;     ///< RGB565
};

/// Blends the glyph's colour into the target by its coverage.
void BlitGlyphSmooth(CImage& target, const GlyphView& glyph);
