#include "platform/directdraw.h"
#include "platform/posix/out_of_memory.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/one_reference.h"
#include "platform/sdl/present.h"

#include <cstdint>
#include <vector>

namespace
{
/// The result of a call that makes an object.
template <class Interface, class Make>
HRESULT MakeObject(Interface** object, Make make)
{
    return OrOutOfMemory(DDERR_OUTOFMEMORY, [=] {
        *object = make();
        return DD_OK;
    });
}

/// Frames always fill the window's screen, so there is nothing to clip.
class CClipper final : public COneReference<IDirectDrawClipper>
{
public:
    HRESULT SetHWnd(DWORD, HWND) override { return DD_OK; }
};

/// What both surfaces have in common. They lie in main memory and are never lost.
class CSurface : public IDirectDrawSurface
{
public:
    HRESULT Blt(RECT*, IDirectDrawSurface*, RECT*, DWORD, DDBLTFX*) override { return DDERR_GENERIC; }
    HRESULT GetAttachedSurface(DDSCAPS*, IDirectDrawSurface**) override { return DDERR_GENERIC; }
    HRESULT GetPixelFormat(DDPIXELFORMAT* format) override
    {
        format->dwGBitMask = 0x07E0;
        return DD_OK;
    }
    HRESULT IsLost() override { return DD_OK; }
    HRESULT Lock(RECT*, DDSURFACEDESC*, DWORD, HANDLE) override { return DDERR_GENERIC; }
    HRESULT Restore() override { return DD_OK; }
    HRESULT SetClipper(IDirectDrawClipper*) override { return DD_OK; }
    HRESULT Unlock(LPVOID) override { return DD_OK; }

protected:
    ~CSurface() = default;
};

/// The frame being written. It belongs to the screen, whatever references to it there are.
class CBackSurface final : public CSurface
{
public:
    explicit CBackSurface(SDL_Point frameSize)
        : size(frameSize), pixels(static_cast<size_t>(size.x) * static_cast<size_t>(size.y))
    {
    }

    ULONG Release() override { return 1; }

    /// As a whole.
    HRESULT Lock(RECT*, DDSURFACEDESC* description, DWORD, HANDLE) override
    {
        description->lPitch = size.x * 2;
        description->lpSurface = pixels.data();
        return DD_OK;
    }

    HRESULT Show()
    {
        nativeWindow.view.Update({ 0, 0, size.x, size.y }, pixels.data(), size.x * 2);
        PresentFrame();
        return DD_OK;
    }

private:
    const SDL_Point size;
    std::vector<uint16_t> pixels;
};

/// The screen.
class CPrimarySurface final : public COneReference<CSurface>
{
public:
    explicit CPrimarySurface(SDL_Point frameSize) : back(frameSize) {}

    /// The whole back surface onto the whole screen.
    HRESULT Blt(RECT*, IDirectDrawSurface*, RECT*, DWORD, DDBLTFX*) override { return back.Show(); }

    HRESULT GetAttachedSurface(DDSCAPS*, IDirectDrawSurface** surface) override
    {
        *surface = &back;
        return DD_OK;
    }

private:
    CBackSurface back;
};

class CDirectDraw final : public COneReference<IDirectDraw>
{
public:
    HRESULT CreateClipper(DWORD, IDirectDrawClipper** clipper, IUnknown*) override
    {
        return MakeObject(clipper, [] { return new CClipper; });
    }

    /// The screen with one back surface, whatever the description asks for.
    HRESULT CreateSurface(DDSURFACEDESC*, IDirectDrawSurface** surface, IUnknown*) override
    {
        return MakeObject(surface, [this] { return new CPrimarySurface(frameSize); });
    }

    HRESULT RestoreDisplayMode() override
    {
        LeaveFullScreen(nativeWindow);
        return DD_OK;
    }

    HRESULT SetCooperativeLevel(HWND, DWORD) override { return DD_OK; }

    /// The screen keeps its resolution; frames of the mode's size, always in 16 bits, are scaled to it.
    HRESULT SetDisplayMode(DWORD width, DWORD height, DWORD) override
    {
        frameSize = { static_cast<int>(width), static_cast<int>(height) };
        return EnterFullScreen(nativeWindow, frameSize) ? DD_OK : DDERR_GENERIC;
    }

private:
    SDL_Point frameSize = {};
};
}

HRESULT DirectDrawCreate(GUID*, IDirectDraw** directDraw, IUnknown*)
{
    return MakeObject(directDraw, [] { return new CDirectDraw; });
}
