#pragma once

#include "gfx/image.h"
#include "platform/gdi.h"

#include <cstdint>
#include <memory>

// What every text of the game is made with.
constexpr int TEXT_GREY_LEVELS = 16;
constexpr int TEXT_GLYPH_SLOTS = 128;

/// The game's typeface, Verdana in bold: height of the cell and width of the average character in pixels. The caller
/// deletes it, not before the text images that use it. Null when there is no font.
HFONT CreateVerdana(int height, int width);

/// One cached character.
struct CGlyph {
    int32_t offsetX = 0; ///< minus the glyph origin's x
    int32_t offsetY = 0; ///< the glyph origin's y minus the font's ascent
    int32_t width = 0;   ///< bitmap row length in bytes, a multiple of 4; 0 for a blank glyph
    int32_t height = 0;
    int32_t advance = 0;
    uint32_t bufferSize = 0;
    std::unique_ptr<uint8_t[]> bits; ///< coverage 0 to 16, a byte a pixel, top row first
};

/// A font's glyph cache that draws strings. Each character is rendered on first use; the least recently used one
/// gives way when the cache is full. Characters are bytes, or two bytes where the first is above 128.
class CTextImage
{
public:
    struct Key {
        uint32_t code;
        uint32_t lastUse;    ///< clock at its last request
        uint16_t glyphIndex; ///< slot in `glyphs`
    };

    ~CTextImage() { TextImageFree(); }

    /// `font` stays the caller's. False: ENGINE_CREATE_FONT, and the text image draws nothing.
    bool TextImageCreate(HFONT font, int greyLevels, int slots);
    void TextImageFree();
    /// The character's glyph, rendered when it is not cached; null when that fails.
    CGlyph* GetGlyph(uint32_t code);
    /// What the blit layer draws; false: ENGINE_CREATE_CHAR.
    bool GetGlyphView(uint32_t code, uint16_t colour, GlyphView& view);
    /// (x, y) is the top-left of the line's box.
    void TextDraw(CImage& target, int x, int y, uint16_t colour, const char* text);
    int TextWidth(const char* text);

    int32_t capacity = 0;        ///< cache slots; 0 = not created
    int32_t count = 0;           ///< slots in use
    std::unique_ptr<Key[]> keys; ///< ascending by code
    std::unique_ptr<CGlyph[]> glyphs;
    HDC dc = nullptr;
    int32_t ascent = 0; ///< pixels from the line's top to its baseline
    int32_t height = 0; ///< line height in pixels
    uint32_t clock = 0; ///< advanced by every glyph request
    int32_t levels = 0;

private:
    bool Acquire(HFONT font, int slots);
    CGlyph& TakeFreeSlot(uint32_t code, int place);
    CGlyph& ReplaceOldest(uint32_t code, int place);
    int OldestKey() const;
};
