#include "gfx/text_image.h"

#include "gfx/error.h"

#include <algorithm>
#include <limits>
#include <new>

namespace
{
/// Bytes that a glyph's buffer has beyond the glyph: the blit reads whole groups of four.
constexpr uint32_t GLYPH_SLACK = 8;
/// Codes up to this one (spaces, control codes) move the pen but are not drawn.
constexpr uint32_t LAST_BLANK_CODE = ' ';
/// A byte above this one is the first of a two-byte character.
constexpr unsigned char LAST_SINGLE_BYTE = 128;

constexpr MAT2 identity = { { 0, 1 }, { 0, 0 }, { 0, 0 }, { 0, 1 } };

/// Takes the next character off `text`; 0 at the end. A lead byte without its second byte ends the text.
uint32_t NextCode(const char*& text)
{
    const auto lead = static_cast<unsigned char>(*text);
    if (lead == 0)
        return 0;
    ++text;
    if (lead <= LAST_SINGLE_BYTE)
        return lead;
    const auto trail = static_cast<unsigned char>(*text);
    if (trail == 0)
        return 0;
    ++text;
    return lead * 256u + trail;
}

bool ReserveBits(CGlyph& glyph, uint32_t bytes)
{
    if (glyph.bits != nullptr && glyph.bufferSize >= bytes)
        return true;
    glyph.bits.reset(new (std::nothrow) uint8_t[bytes]());
    glyph.bufferSize = glyph.bits != nullptr ? bytes : 0;
    return glyph.bits != nullptr;
}

/// Fills the glyph from the font selected into `dc`. After a failure it has no extent, so that a later hit on its slot
/// draws nothing.
bool RenderGlyph(CGlyph& glyph, HDC dc, uint32_t code, int ascent)
{
    glyph.width = glyph.height = glyph.advance = 0;
    GLYPHMETRICS metrics = {};
    const DWORD size = GetGlyphOutlineA(dc, code, GGO_GRAY4_BITMAP, &metrics, 0, nullptr, &identity);
    if (size == GDI_ERROR || !ReserveBits(glyph, size + GLYPH_SLACK))
        return false;
    // A blank has nothing to fetch, and some systems call the attempt an error.
    if (size != 0 && GetGlyphOutlineA(dc, code, GGO_GRAY4_BITMAP, &metrics, glyph.bufferSize, glyph.bits.get(),
                                      &identity) == GDI_ERROR)
        return false;
    glyph.width = size != 0 ? static_cast<int32_t>(metrics.gmBlackBoxX + 3) & ~3 : 0;
    glyph.height = size != 0 ? static_cast<int32_t>(metrics.gmBlackBoxY) : 0;
    glyph.advance = metrics.gmCellIncX;
    glyph.offsetX = static_cast<int32_t>(-metrics.gmptGlyphOrigin.x);
    glyph.offsetY = static_cast<int32_t>(metrics.gmptGlyphOrigin.y - ascent);
    return true;
}
}

HFONT CreateVerdana(int height, int width)
{
    return CreateFontA(height, width, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, PROOF_QUALITY, 0,
                       "Verdana");
}

bool CTextImage::TextImageCreate(HFONT font, int greyLevels, int slots)
{
    TextImageFree();
    if (!Acquire(font, slots)) {
        TextImageFree();
        return FailWith(ENGINE_CREATE_FONT);
    }
    capacity = slots;
    levels = greyLevels;
    return true;
}

void CTextImage::TextImageFree()
{
    keys.reset();
    glyphs.reset();
    if (dc != nullptr)
        DeleteDC(dc);
    dc = nullptr;
    capacity = 0;
    count = 0;
    clock = 0;
}

/// Device context, arrays and metrics; a slot's index is 16 bits wide.
bool CTextImage::Acquire(HFONT font, int slots)
{
    if (slots < 1 || slots > std::numeric_limits<uint16_t>::max())
        return false;
    dc = CreateCompatibleDC(nullptr);
    if (dc == nullptr)
        return false;
    if (font != nullptr)
        SelectObject(dc, font);

    keys.reset(new (std::nothrow) Key[static_cast<size_t>(slots)]);
    glyphs.reset(new (std::nothrow) CGlyph[static_cast<size_t>(slots)]);
    TEXTMETRICA metrics = {};
    if (keys == nullptr || glyphs == nullptr || !GetTextMetricsA(dc, &metrics))
        return false;
    ascent = static_cast<int32_t>(metrics.tmAscent);
    height = static_cast<int32_t>(metrics.tmHeight);
    return true;
}

CGlyph* CTextImage::GetGlyph(uint32_t code)
{
    if (capacity == 0)
        return nullptr;
    ++clock;
    Key* const last = keys.get() + count;
    Key* const place =
        std::lower_bound(keys.get(), last, code, [](const Key& key, uint32_t c) { return key.code < c; });
    if (place != last && place->code == code) {
        place->lastUse = clock;
        return &glyphs[place->glyphIndex];
    }

    const int slot = static_cast<int>(place - keys.get());
    CGlyph& glyph = count < capacity ? TakeFreeSlot(code, slot) : ReplaceOldest(code, slot);
    return RenderGlyph(glyph, dc, code, ascent) ? &glyph : nullptr;
}

/// `place` is where the code belongs among the keys.
CGlyph& CTextImage::TakeFreeSlot(uint32_t code, int place)
{
    std::move_backward(&keys[place], &keys[count], &keys[count] + 1);
    keys[place] = { code, clock, static_cast<uint16_t>(count) };
    return glyphs[count++];
}

/// The key used least recently.
int CTextImage::OldestKey() const
{
    const auto isOlder = [](const Key& a, const Key& b) { return a.lastUse < b.lastUse; };
    return static_cast<int>(std::min_element(keys.get(), keys.get() + count, isOlder) - keys.get());
}

CGlyph& CTextImage::ReplaceOldest(uint32_t code, int place)
{
    const int victim = OldestKey();
    const uint32_t age = keys[victim].lastUse;
    const uint16_t glyphIndex = keys[victim].glyphIndex;

    // The keys between victim and place close the victim's gap, which opens one for the new key.
    if (victim < place) {
        --place;
        std::move(&keys[victim] + 1, &keys[place] + 1, &keys[victim]);
    } else {
        std::move_backward(&keys[place], &keys[victim], &keys[victim] + 1);
    }
    keys[place] = { code, clock, glyphIndex };

    // Only the order of use counts, so the counters can be kept small.
    for (int i = 0; i < count; ++i)
        keys[i].lastUse -= age;
    clock -= age;
    return glyphs[glyphIndex];
}

bool CTextImage::GetGlyphView(uint32_t code, uint16_t colour, GlyphView& view)
{
    const CGlyph* glyph = GetGlyph(code);
    if (glyph == nullptr)
        return FailWith(ENGINE_CREATE_CHAR);
    view = { glyph->offsetX, glyph->offsetY, glyph->width, glyph->height, glyph->advance, glyph->bits.get(), colour };
    return true;
}

void CTextImage::TextDraw(CImage& target, int x, int y, uint16_t colour, const char* text)
{
    const int32_t anchorX = target.x;
    const int32_t anchorY = target.y;
    target.x = x;
    target.y = y;
    while (const uint32_t code = NextCode(text)) {
        GlyphView view = {};
        if (!GetGlyphView(code, colour, view))
            continue;
        if (code > LAST_BLANK_CODE)
            BlitGlyphSmooth(target, view);
        target.x += view.advance;
    }
    target.x = anchorX;
    target.y = anchorY;
}

int CTextImage::TextWidth(const char* text)
{
    int width = 0;
    while (const uint32_t code = NextCode(text)) {
        if (const CGlyph* glyph = GetGlyph(code))
            width += glyph->advance;
    }
    return width;
}
