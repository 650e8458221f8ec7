#pragma once

/// Bitmaps to the window, fonts and glyph outlines (gdi32).
#ifdef _WIN32
#include <windows.h>
#else
#include "platform/types.h"

constexpr DWORD BI_BITFIELDS = 3;
constexpr UINT DIB_RGB_COLORS = 0;
constexpr int BLACK_BRUSH = 4;
constexpr DWORD DEFAULT_CHARSET = 1;
constexpr DWORD PROOF_QUALITY = 2;
constexpr int FW_BOLD = 700;
constexpr UINT GGO_GRAY4_BITMAP = 5;
constexpr DWORD GDI_ERROR = 0xFFFFFFFF;

struct RGBQUAD {
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};

struct BITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};

struct BITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

/// Only the metrics that the game reads, in pixels.
struct TEXTMETRICA {
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmAveCharWidth;
};

struct GLYPHMETRICS {
    UINT gmBlackBoxX;
    UINT gmBlackBoxY;
    POINT gmptGlyphOrigin;
    short gmCellIncX;
    short gmCellIncY;
};

struct FIXED {
    WORD fract;
    short value;
};

struct MAT2 {
    FIXED eM11;
    FIXED eM12;
    FIXED eM21;
    FIXED eM22;
};

HGDIOBJ GetStockObject(int object);

/// Copies 16-bit bit-field pixels (masks behind the header, RGB565) to the context's window. Returns the number
/// of rows set, 0 on failure. The frame is on the screen when the call returns.
int SetDIBitsToDevice(HDC context, int x, int y, DWORD width, DWORD height, int sourceX, int sourceY, UINT startScan,
                      UINT scanLines, LPCVOID bits, const BITMAPINFO* info, UINT colourUse);

HDC CreateCompatibleDC(HDC context);
BOOL DeleteDC(HDC context);
HGDIOBJ SelectObject(HDC context, HGDIOBJ object);
BOOL DeleteObject(HGDIOBJ object);

/// A positive height is the cell's, in pixels; a non-zero width is the average character's advance, to which the
/// face is scaled horizontally. A face that is not installed gives its nearest relative. Null when there is none.
HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic, DWORD underline,
                  DWORD strikeOut, DWORD charSet, DWORD outputPrecision, DWORD clipPrecision, DWORD quality,
                  DWORD pitchAndFamily, LPCSTR face);
BOOL GetTextMetricsA(HDC context, TEXTMETRICA* metrics);

/// With no buffer: the bytes a glyph needs (0 for a blank one). With one: the glyph in 17 levels, rows of whole
/// 4 bytes, top row first. GDI_ERROR on failure.
DWORD GetGlyphOutlineA(HDC context, UINT character, UINT format, GLYPHMETRICS* metrics, DWORD bufferSize, LPVOID buffer,
                       const MAT2* transform);
#endif
