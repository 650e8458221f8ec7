#include "platform/directdraw.h"
#include "platform/posix/out_of_memory.h"
#include "platform/release.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/present.h"

#include <cstdint>
#include <vector>

namespace
{
/// The count of references that every object here has; the last one released destroys it.
template <class Interface>
class CCounted : public Interface
{
public:
    CCounted() = default;
    virtual ~CCounted() = default;
    CCounted(const CCounted&) = delete;
    CCounted& operator=(const CCounted&) = delete;

    void AddReference() { ++references; }
    ULONG Release() final
    {
        const ULONG left = --references;
        if (left == 0)
            delete this;
        return left;
    }

private:
    ULONG references = 1;
};

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
class CClipper final : public CCounted<IDirectDrawClipper>
{
public:
    HRESULT SetHWnd(DWORD, HWND window) override { return WindowOf(window) ? DD_OK : DDERR_GENERIC; }
};

/// What both surfaces have in common. They lie in main memory and are never lost.
class CSurface : public CCounted<IDirectDrawSurface>
{
public:
    HRESULT Blt(RECT*, IDirectDrawSurface*, RECT*, DWORD, DDBLTFX*) override { return DDERR_GENERIC; }
    HRESULT GetAttachedSurface(DDSCAPS*, IDirectDrawSurface**) override { return DDERR_GENERIC; }
    HRESULT GetPixelFormat(DDPIXELFORMAT* format) override
    {
        format->dwRGBBitCount = 16;
        format->dwRBitMask = 0xF800;
        format->dwGBitMask = 0x07E0;
        format->dwBBitMask = 0x001F;
        return DD_OK;
    }
    HRESULT IsLost() override { return DD_OK; }
    HRESULT Lock(RECT*, DDSURFACEDESC*, DWORD, HANDLE) override { return DDERR_GENERIC; }
    HRESULT Restore() override { return DD_OK; }
    HRESULT SetClipper(IDirectDrawClipper*) override { return DDERR_GENERIC; }
    HRESULT Unlock(LPVOID) override { return DDERR_GENERIC; }
};

/// The frame being written.
class CBackSurface final : public CSurface
{
public:
    explicit CBackSurface(SDL_Point frameSize)
        : size(frameSize), pixels(static_cast<size_t>(size.x) * static_cast<size_t>(size.y))
    {
    }

    /// Only as a whole, and once until it is unlocked.
    HRESULT Lock(RECT* area, DDSURFACEDESC* description, DWORD, HANDLE) override
    {
        if (area || locked)
            return DDERR_GENERIC;
        locked = true;
        description->dwWidth = static_cast<DWORD>(size.x);
        description->dwHeight = static_cast<DWORD>(size.y);
        description->lPitch = size.x * 2;
        description->lpSurface = pixels.data();
        return GetPixelFormat(&description->ddpfPixelFormat);
    }

    HRESULT Unlock(LPVOID) override
    {
        const bool wasLocked = locked;
        locked = false;
        return wasLocked ? DD_OK : DDERR_GENERIC;
    }

    bool ShowIn(CFrameView& view) const
    {
        const bool isDrawn = !locked && view.Update({ 0, 0, size.x, size.y }, pixels.data(), size.x * 2);
        PresentFrame();
        return isDrawn;
    }

private:
    const SDL_Point size;
    std::vector<uint16_t> pixels;
    bool locked = false;
};

/// The screen. Owns its back surface.
class CPrimarySurface final : public CSurface
{
public:
    CPrimarySurface(HWND targetWindow, SDL_Point frameSize) : window(targetWindow), back(new CBackSurface(frameSize)) {}
    ~CPrimarySurface() override
    {
        ReleaseAndForget(clipper);
        back->Release();
    }

    /// Only the whole back surface onto the whole screen.
    HRESULT Blt(RECT* target, IDirectDrawSurface* source, RECT* sourceRect, DWORD, DDBLTFX*) override
    {
        NativeWindow* native = WindowOf(window);
        const bool whole = !target && !sourceRect && source == back;
        return native && whole && back->ShowIn(native->view) ? DD_OK : DDERR_GENERIC;
    }

    HRESULT GetAttachedSurface(DDSCAPS* caps, IDirectDrawSurface** surface) override
    {
        if (!(caps->dwCaps & DDSCAPS_BACKBUFFER))
            return DDERR_GENERIC;
        back->AddReference();
        *surface = back;
        return DD_OK;
    }

    HRESULT SetClipper(IDirectDrawClipper* newClipper) override
    {
        CClipper* added = static_cast<CClipper*>(newClipper);
        if (added)
            added->AddReference();
        ReleaseAndForget(clipper);
        clipper = added;
        return DD_OK;
    }

private:
    const HWND window;
    CBackSurface* const back;
    CClipper* clipper = nullptr;
};

class CDirectDraw final : public CCounted<IDirectDraw>
{
public:
    ~CDirectDraw() override { RestoreDisplayMode(); }

    HRESULT CreateClipper(DWORD, IDirectDrawClipper** clipper, IUnknown*) override
    {
        return MakeObject(clipper, [] { return new CClipper; });
    }

    /// Only the screen with one back surface, in full screen.
    HRESULT CreateSurface(DDSURFACEDESC* description, IDirectDrawSurface** surface, IUnknown*) override
    {
        const bool isScreen = description->ddsCaps.dwCaps & DDSCAPS_PRIMARYSURFACE;
        if (!isFullScreen || !isScreen || description->dwBackBufferCount != 1)
            return DDERR_GENERIC;
        return MakeObject(surface, [this] { return new CPrimarySurface(window, frameSize); });
    }

    HRESULT RestoreDisplayMode() override
    {
        NativeWindow* native = WindowOf(window);
        if (native && isFullScreen)
            LeaveFullScreen(*native);
        isFullScreen = false;
        return DD_OK;
    }

    HRESULT SetCooperativeLevel(HWND newWindow, DWORD flags) override
    {
        if (!WindowOf(newWindow))
            return DDERR_GENERIC;
        window = newWindow;
        isExclusive = flags & DDSCL_EXCLUSIVE;
        return DD_OK;
    }

    /// The screen keeps its resolution; frames of the mode's size are scaled to it.
    HRESULT SetDisplayMode(DWORD width, DWORD height, DWORD bitsPerPixel) override
    {
        NativeWindow* native = WindowOf(window);
        const SDL_Point size = { static_cast<int>(width), static_cast<int>(height) };
        if (!native || !isExclusive || bitsPerPixel != 16 || !EnterFullScreen(*native, size))
            return DDERR_GENERIC;
        frameSize = size;
        isFullScreen = true;
        return DD_OK;
    }

private:
    HWND window = nullptr;
    SDL_Point frameSize = {};
    bool isExclusive = false;
    bool isFullScreen = false;
};
}

HRESULT DirectDrawCreate(GUID*, IDirectDraw** directDraw, IUnknown*)
{
    return MakeObject(directDraw, [] { return new CDirectDraw; });
}
