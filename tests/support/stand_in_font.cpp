// A font that looks the same on every machine, in the place of the system's: the glyphs are blocks whose width and
// pattern depend on the character, in the size that was asked for.

#include "platform/gdi.h"

#include <cstdint>
#include <cstring>

namespace
{
/// A font made here is its cell's height and width, an HDC points at the cell of the font selected into it.
struct Cell {
    DWORD height, width;
};

Cell& CellOf(HDC context)
{
    return *reinterpret_cast<Cell*>(context);
}

constexpr BYTE FULL_COVERAGE = 16;
constexpr UINT WITHOUT_BITS = 0x8120; ///< a character that has a size and cannot be had
}

HFONT WINAPI CreateFontA(int height, int width, int, int, int, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                         LPCSTR)
{
    return reinterpret_cast<HFONT>(static_cast<uintptr_t>(height << 8 | width));
}

HDC WINAPI CreateCompatibleDC(HDC)
{
    return reinterpret_cast<HDC>(new Cell{ 7, 3 }); // no text of the game is as small
}

HGDIOBJ WINAPI SelectObject(HDC context, HGDIOBJ font)
{
    const DWORD cell = static_cast<DWORD>(reinterpret_cast<uintptr_t>(font));
    CellOf(context) = { cell >> 8, cell & 0xFF };
    return nullptr;
}

BOOL WINAPI DeleteDC(HDC context)
{
    delete &CellOf(context);
    return TRUE;
}

BOOL WINAPI DeleteObject(HGDIOBJ)
{
    return TRUE;
}

HGDIOBJ WINAPI GetStockObject(int)
{
    return nullptr;
}

BOOL WINAPI GetTextMetricsA(HDC context, TEXTMETRICA* metrics)
{
    *metrics = {};
    metrics->tmHeight = static_cast<LONG>(CellOf(context).height);
    metrics->tmAscent = metrics->tmHeight - 3;
    return TRUE;
}

/// A space is blank; every other character stands on the base line, capital letters higher than the others. Digits are
/// equally wide.
DWORD WINAPI GetGlyphOutlineA(HDC context, UINT character, UINT format, GLYPHMETRICS* metrics, DWORD, LPVOID buffer,
                              const MAT2* matrix)
{
    constexpr MAT2 identity = { { 0, 1 }, { 0, 0 }, { 0, 0 }, { 0, 1 } };
    if (context == nullptr || format != GGO_GRAY4_BITMAP || std::memcmp(matrix, &identity, sizeof identity) != 0)
        return GDI_ERROR;
    const bool isBlank = character <= ' ';
    const bool isDigit = character >= '0' && character <= '9';
    const DWORD width = isBlank ? 1 : CellOf(context).width - 1 + (isDigit ? 2 : character % 4);
    const DWORD height = isBlank ? 1 : CellOf(context).height - (character < 'a' ? 4 : 6);
    const DWORD rowBytes = (width + 3) & ~3u;
    *metrics = { width, height, { 1, static_cast<LONG>(height) }, static_cast<short>(width + 2), 0 };
    if (isBlank)
        return 0;
    auto* target = static_cast<BYTE*>(buffer);
    if (target != nullptr && character == WITHOUT_BITS)
        return GDI_ERROR;
    for (DWORD i = 0; target != nullptr && i < rowBytes * height; ++i) {
        const BYTE pattern = static_cast<BYTE>(character * 7 + i % rowBytes * 5 + i / rowBytes * 3);
        target[i] = i % rowBytes < width ? pattern % (FULL_COVERAGE + 1) : BYTE{ 0 };
    }
    return rowBytes * height;
}

#ifdef _WIN32
// What is compiled for functions of a library calls them through pointers of these names.
extern "C" {
decltype(&CreateFontA) importCreateFontA asm("__imp_CreateFontA") = CreateFontA;
decltype(&CreateCompatibleDC) importCreateCompatibleDC asm("__imp_CreateCompatibleDC") = CreateCompatibleDC;
decltype(&SelectObject) importSelectObject asm("__imp_SelectObject") = SelectObject;
decltype(&DeleteDC) importDeleteDC asm("__imp_DeleteDC") = DeleteDC;
decltype(&DeleteObject) importDeleteObject asm("__imp_DeleteObject") = DeleteObject;
decltype(&GetStockObject) importGetStockObject asm("__imp_GetStockObject") = GetStockObject;
decltype(&GetTextMetricsA) importGetTextMetricsA asm("__imp_GetTextMetricsA") = GetTextMetricsA;
decltype(&GetGlyphOutlineA) importGetGlyphOutlineA asm("__imp_GetGlyphOutlineA") = GetGlyphOutlineA;
}
#endif
