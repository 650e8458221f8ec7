#include "gfx/display.h"

#include "gfx/error.h"
#include "gfx/row_kernels.h"
#include "platform/release.h"

#include <initializer_list>

HWND displayWindow = nullptr;
bool isWindowed = true;
int displayWidth = 0;
int displayHeight = 0;

namespace
{
IDirectDraw* directDraw = nullptr; ///< null in windowed mode
IDirectDrawSurface* primarySurface = nullptr;
IDirectDrawSurface* backSurface = nullptr;
DDSURFACEDESC surfaceDesc{}; ///< reused for creating the primary surface and for every lock
RowConverter convertRow = ConvertRowsCopy;

constexpr DWORD FRAME_STYLES = WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
constexpr DWORD GREEN_MASK_555 = 0x03E0;

struct WindowMode {
    DWORD clearedStyle;
    DWORD setStyle;
    HWND placement; ///< among the other windows
};

// No sizing frame: the maximise box leads to full screen.
const WindowMode windowedMode{ WS_POPUP | FRAME_STYLES, WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX,
                               HWND_NOTOPMOST };
const WindowMode fullScreenMode{ FRAME_STYLES, WS_POPUP, HWND_TOPMOST };

DWORD RestyleWindow(const WindowMode& mode)
{
    const DWORD current = static_cast<DWORD>(GetWindowLongA(displayWindow, GWL_STYLE));
    const DWORD style = (current & ~mode.clearedStyle) | mode.setStyle;
    SetWindowLongA(displayWindow, GWL_STYLE, static_cast<LONG>(style));
    return style;
}

/// Sizes the window so that its client area is the display's, in the middle of the screen.
void CentreWindow(DWORD style)
{
    const DWORD extendedStyle = static_cast<DWORD>(GetWindowLongA(displayWindow, GWL_EXSTYLE));
    RECT outer{ 0, 0, displayWidth, displayHeight };
    AdjustWindowRectEx(&outer, style, GetMenu(displayWindow) != nullptr, extendedStyle);
    const int width = static_cast<int>(outer.right - outer.left);
    const int height = static_cast<int>(outer.bottom - outer.top);
    const int left = (GetSystemMetrics(SM_CXSCREEN) - width) / 2;
    const int top = (GetSystemMetrics(SM_CYSCREEN) - height) / 2;
    SetWindowPos(displayWindow, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void PlaceWindow(const WindowMode& mode)
{
    CentreWindow(RestyleWindow(mode));
    SetWindowPos(displayWindow, mode.placement, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_SHOWWINDOW);
}

bool EnterWindowed()
{
    PlaceWindow(windowedMode);
    // The whole desktop: the full-screen picture may still stand around the window.
    RedrawWindow(nullptr, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    return true;
}

// The steps into full screen; each returns its failure's code.

EngineError CreateDirectDraw()
{
    if (DirectDrawCreate(nullptr, &directDraw, nullptr) != DD_OK)
        return ENGINE_CREATE_DIRECTDRAW;
    directDraw->SetCooperativeLevel(displayWindow, DDSCL_EXCLUSIVE | DDSCL_FULLSCREEN);
    const auto width = static_cast<DWORD>(displayWidth);
    const auto height = static_cast<DWORD>(displayHeight);
    return directDraw->SetDisplayMode(width, height, 16) == DD_OK ? ENGINE_NO_ERROR : ENGINE_SET_DISPLAY_MODE;
}

EngineError CreateSurfaces()
{
    surfaceDesc = DDSURFACEDESC{};
    surfaceDesc.dwSize = sizeof(surfaceDesc);
    surfaceDesc.dwFlags = DDSD_CAPS | DDSD_BACKBUFFERCOUNT;
    surfaceDesc.ddsCaps.dwCaps = DDSCAPS_PRIMARYSURFACE | DDSCAPS_FLIP | DDSCAPS_COMPLEX | DDSCAPS_3DDEVICE;
    surfaceDesc.dwBackBufferCount = 1;
    if (directDraw->CreateSurface(&surfaceDesc, &primarySurface, nullptr) != DD_OK)
        return ENGINE_CREATE_SURFACE;
    DDSCAPS backCaps{};
    backCaps.dwCaps = DDSCAPS_BACKBUFFER;
    const bool attached = primarySurface->GetAttachedSurface(&backCaps, &backSurface) == DD_OK;
    return attached ? ENGINE_NO_ERROR : ENGINE_ATTACH_SURFACE;
}

/// Gives the clipper the window and the primary surface the clipper.
EngineError ConnectClipper(IDirectDrawClipper& clipper)
{
    if (clipper.SetHWnd(0, displayWindow) != DD_OK)
        return ENGINE_CLIPPER_WINDOW;
    if (primarySurface->SetClipper(&clipper) != DD_OK)
        return ENGINE_SET_CLIPPER;
    return ENGINE_NO_ERROR;
}

EngineError AttachClipper()
{
    IDirectDrawClipper* clipper = nullptr;
    if (directDraw->CreateClipper(0, &clipper, nullptr) != DD_OK)
        return ENGINE_CREATE_CLIPPER;
    const EngineError code = ConnectClipper(*clipper);
    clipper->Release(); // the primary surface keeps its own reference
    return code;
}

void ChooseRowConverter()
{
    DDPIXELFORMAT format{};
    format.dwSize = sizeof(format);
    const bool known = primarySurface->GetPixelFormat(&format) == DD_OK;
    convertRow = known && format.dwGBitMask == GREEN_MASK_555 ? ConvertRows555 : ConvertRowsCopy;
}

/// Applies kernel(target row, pixel count, source row) to each row, in whole groups of four pixels.
template <typename Kernel>
void ConvertRows(const CImage& image, void* surface, int rowSkip, Kernel kernel)
{
    const int count = image.width / 4 * 4;
    uint8_t* target = static_cast<uint8_t*>(surface);
    for (int row = 0; row < image.height; ++row) {
        kernel(reinterpret_cast<uint16_t*>(target), static_cast<size_t>(count), image.Row(row));
        target += 2 * count + rowSkip;
    }
}

bool EnterFullScreen()
{
    PlaceWindow(fullScreenMode);
    for (const auto step : { CreateDirectDraw, CreateSurfaces, AttachClipper }) {
        if (const EngineError code = step(); code != ENGINE_NO_ERROR) {
            DisplayRelease();
            return FailWith(code);
        }
    }
    ChooseRowConverter();
    return true;
}

void PresentInWindow(const CImage& image)
{
    HDC context = GetDC(displayWindow);
    if (!context)
        return;
    image.DrawToDC(context, 0, 0);
    ReleaseDC(displayWindow, context);
}

void RestoreLost(IDirectDrawSurface& surface)
{
    if (surface.IsLost() == DDERR_SURFACELOST)
        surface.Restore();
}

void WriteBackSurface(const CImage& image)
{
    if (backSurface->Lock(nullptr, &surfaceDesc, DDLOCK_WAIT, nullptr) != DD_OK)
        return;
    convertRow(image, surfaceDesc.lpSurface, static_cast<int>(surfaceDesc.lPitch) - 2 * image.width);
    backSurface->Unlock(nullptr);
}

void PresentFullScreen(const CImage& image)
{
    RestoreLost(*backSurface);
    WriteBackSurface(image);
    RestoreLost(*primarySurface);
    primarySurface->Blt(nullptr, backSurface, nullptr, DDBLT_WAIT, nullptr);
}
}

bool DisplaySetMode(HWND window, int width, int height, bool windowed)
{
    DisplayRelease();
    displayWindow = window;
    isWindowed = windowed;
    displayWidth = width;
    displayHeight = height;
    return windowed ? EnterWindowed() : EnterFullScreen();
}

void DisplayRelease()
{
    ReleaseAndForget(backSurface);
    ReleaseAndForget(primarySurface);
    if (!directDraw)
        return;
    directDraw->RestoreDisplayMode();
    directDraw->SetCooperativeLevel(displayWindow, DDSCL_NORMAL);
    ReleaseAndForget(directDraw);
}

void DisplayPresent(const CImage& image)
{
    if (isWindowed)
        PresentInWindow(image);
    else if (backSurface && primarySurface)
        PresentFullScreen(image);
}

void ConvertRowsCopy(const CImage& image, void* surface, int rowSkip)
{
    ConvertRows(image, surface, rowSkip, BestRowKernels().copy);
}

void ConvertRows555(const CImage& image, void* surface, int rowSkip)
{
    ConvertRows(image, surface, rowSkip, BestRowKernels().toRgb555);
}
