#include "platform/gdi.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/present.h"

HDC GetDC(HWND window)
{
    return WindowOf(window) ? reinterpret_cast<HDC>(window) : nullptr;
}

int ReleaseDC(HWND, HDC)
{
    return TRUE;
}

int SetDIBitsToDevice(HDC, int x, int y, DWORD width, DWORD height, int sourceX, int, UINT, UINT scanLines,
                      LPCVOID bits, const BITMAPINFO* info, UINT)
{
    // All in the target's pixels: what is asked for, the rows that `bits` holds, and the frame.
    const SDL_Rect asked = { x, y, static_cast<int>(width), static_cast<int>(height) };
    const SDL_Rect held = { x - sourceX, y, info->bmiHeader.biWidth, static_cast<int>(scanLines) };
    const SDL_Point size = nativeWindow.view.FrameSize();
    const SDL_Rect frame = { 0, 0, size.x, size.y };
    SDL_Rect area = {};
    if (SDL_IntersectRect(&asked, &held, &area) && SDL_IntersectRect(&area, &frame, &area)) {
        const int rowBytes = info->bmiHeader.biWidth * 2;
        const ptrdiff_t offset = static_cast<ptrdiff_t>(area.y - held.y) * rowBytes + (area.x - held.x) * 2;
        nativeWindow.view.Update(area, static_cast<const char*>(bits) + offset, rowBytes);
    }
    PresentFrame();
    return static_cast<int>(scanLines);
}
