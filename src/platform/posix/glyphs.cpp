#include "platform/gdi.h"

#include "platform/posix/font_face.h"
#include "platform/posix/out_of_memory.h"

#include <ft2build.h>
#include <memory>
#include <new>
#include <utility>
#include <vector>
#include FT_FREETYPE_H

namespace
{
constexpr UINT FULL_COVERAGE = 16; ///< of GGO_GRAY4_BITMAP
constexpr uint32_t NO_CHARACTER = 0xFFFF;

/// The characters 0x80 to 0x9F of code page 1252; the rest of the page is Latin-1.
constexpr uint16_t codePage1252[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

uint32_t ToUnicode(UINT character)
{
    if (character > 0xFF)
        return NO_CHARACTER; // the page has no two-byte characters
    return character >= 0x80 && character <= 0x9F ? codePage1252[character - 0x80] : character;
}

/// What an HDC made here stands for.
struct MemoryContext {
    FontFace* font = nullptr; ///< not owned
};

MemoryContext* ContextOf(HDC context)
{
    return reinterpret_cast<MemoryContext*>(context);
}

int stockBrush = BLACK_BRUSH;

/// Fonts live until they are deleted or the process ends, so the table is never destroyed.
union FontTable {
    FontTable() : fonts() {}
    ~FontTable() {}
    std::vector<std::unique_ptr<FontFace>> fonts;
};
FontTable table;

DWORD RowBytes(const FT_Bitmap& bitmap)
{
    return (bitmap.width + 3) & ~3u;
}

/// From 256 levels to 17.
BYTE ToLevel(unsigned char coverage)
{
    return static_cast<BYTE>((coverage * FULL_COVERAGE + 127) / 255);
}

void CopyCoverage(const FT_Bitmap& bitmap, BYTE* target)
{
    const DWORD rowBytes = RowBytes(bitmap);
    for (unsigned row = 0; row < bitmap.rows; ++row, target += rowBytes) {
        const unsigned char* source = bitmap.buffer + static_cast<ptrdiff_t>(row) * bitmap.pitch;
        for (DWORD i = 0; i < rowBytes; ++i)
            target[i] = i < bitmap.width ? ToLevel(source[i]) : BYTE{ 0 };
    }
}

GLYPHMETRICS MetricsOf(const FT_GlyphSlotRec& glyph)
{
    const bool isBlank = glyph.bitmap.width == 0 || glyph.bitmap.rows == 0;
    GLYPHMETRICS metrics = {};
    metrics.gmBlackBoxX = isBlank ? 1 : glyph.bitmap.width;
    metrics.gmBlackBoxY = isBlank ? 1 : glyph.bitmap.rows;
    metrics.gmptGlyphOrigin = { isBlank ? 0 : glyph.bitmap_left, isBlank ? 0 : glyph.bitmap_top };
    metrics.gmCellIncX = static_cast<short>((glyph.advance.x + 32) >> 6);
    return metrics;
}
}

HGDIOBJ GetStockObject(int object)
{
    return object == BLACK_BRUSH ? &stockBrush : nullptr;
}

HDC CreateCompatibleDC(HDC)
{
    return reinterpret_cast<HDC>(new (std::nothrow) MemoryContext);
}

BOOL DeleteDC(HDC context)
{
    delete ContextOf(context);
    return context != nullptr;
}

/// Fonts are the only objects that go into a memory context.
HGDIOBJ SelectObject(HDC context, HGDIOBJ object)
{
    if (context == nullptr || object == nullptr || object == &stockBrush)
        return nullptr;
    return std::exchange(ContextOf(context)->font, static_cast<FontFace*>(object));
}

BOOL DeleteObject(HGDIOBJ object)
{
    std::erase_if(table.fonts, [object](const auto& font) { return font.get() == object; });
    return object != nullptr;
}

HFONT CreateFontA(int height, int width, int, int, int weight, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                  LPCSTR face)
{
    if (height <= 0 || width < 0)
        return nullptr;
    return OrOutOfMemory<HFONT>(nullptr, [=]() -> HFONT {
        std::unique_ptr<FontFace> font = FontFace::Find(face, weight, height, width);
        if (font == nullptr)
            return nullptr;
        return reinterpret_cast<HFONT>(table.fonts.emplace_back(std::move(font)).get());
    });
}

BOOL GetTextMetricsA(HDC context, TEXTMETRICA* metrics)
{
    const FontFace* font = context != nullptr ? ContextOf(context)->font : nullptr;
    if (font == nullptr || metrics == nullptr)
        return FALSE;
    *metrics = { font->height, font->ascent, font->height - font->ascent, font->averageWidth };
    return TRUE;
}

DWORD GetGlyphOutlineA(HDC context, UINT character, UINT format, GLYPHMETRICS* metrics, DWORD bufferSize, LPVOID buffer,
                       const MAT2* transform)
{
    FontFace* font = context != nullptr ? ContextOf(context)->font : nullptr;
    if (font == nullptr || format != GGO_GRAY4_BITMAP || metrics == nullptr || transform == nullptr)
        return GDI_ERROR;
    const FT_GlyphSlotRec* glyph = font->Render(ToUnicode(character));
    if (glyph == nullptr)
        return GDI_ERROR;
    *metrics = MetricsOf(*glyph);
    const DWORD size = RowBytes(glyph->bitmap) * glyph->bitmap.rows;
    if (buffer == nullptr || bufferSize == 0)
        return size;
    if (bufferSize < size)
        return GDI_ERROR;
    CopyCoverage(glyph->bitmap, static_cast<BYTE*>(buffer));
    return size;
}
