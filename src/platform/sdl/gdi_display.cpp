#include "platform/gdi.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/present.h"

#include <cstring>

namespace
{
constexpr DWORD RGB565_MASKS[] = { 0xF800, 0x07E0, 0x001F };

NativeWindow* WindowOfContext(HDC context)
{
    return WindowOf(reinterpret_cast<HWND>(context));
}

/// Only top-down pictures in RGB565 are shown.
bool IsTopDownRgb565(const BITMAPINFO& info)
{
    const BITMAPINFOHEADER& header = info.bmiHeader;
    if (header.biBitCount != 16 || header.biCompression != BI_BITFIELDS || header.biWidth <= 0 || header.biHeight >= 0)
        return false;
    // The masks follow the header; the record's declaration has room for the first only.
    const char* masks = reinterpret_cast<const char*>(&info) + sizeof(BITMAPINFOHEADER);
    return std::memcmp(masks, RGB565_MASKS, sizeof RGB565_MASKS) == 0;
}

/// Rows lie on whole groups of 4 bytes.
int RowBytes(LONG width)
{
    return (width * 2 + 3) / 4 * 4;
}
}

HDC GetDC(HWND window)
{
    return WindowOf(window) ? reinterpret_cast<HDC>(window) : nullptr;
}

int ReleaseDC(HWND, HDC context)
{
    return context != nullptr;
}

int SetDIBitsToDevice(HDC context, int x, int y, DWORD width, DWORD height, int sourceX, int sourceY, UINT startScan,
                      UINT scanLines, LPCVOID bits, const BITMAPINFO* info, UINT)
{
    NativeWindow* window = WindowOfContext(context);
    if (!window || !bits || !IsTopDownRgb565(*info))
        return 0;
    // All in the target's pixels: what is asked for, the rows that `bits` holds, and the frame.
    const SDL_Rect asked = { x, y, static_cast<int>(width), static_cast<int>(height) };
    const SDL_Rect held = { x - sourceX, y - sourceY + static_cast<int>(startScan), info->bmiHeader.biWidth,
                            static_cast<int>(scanLines) };
    const SDL_Point size = window->view.FrameSize();
    const SDL_Rect frame = { 0, 0, size.x, size.y };
    SDL_Rect area = {};
    bool isDrawn = true;
    if (SDL_IntersectRect(&asked, &held, &area) && SDL_IntersectRect(&area, &frame, &area)) {
        const int rowBytes = RowBytes(info->bmiHeader.biWidth);
        const ptrdiff_t offset = static_cast<ptrdiff_t>(area.y - held.y) * rowBytes + (area.x - held.x) * 2;
        isDrawn = window->view.Update(area, static_cast<const char*>(bits) + offset, rowBytes);
    }
    PresentFrame();
    return isDrawn ? static_cast<int>(scanLines) : 0;
}
