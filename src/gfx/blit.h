#pragma once

#include <cstdint>

class CImage;

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
