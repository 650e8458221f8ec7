#include "doubles/fake_platform.h"
#include "platform/directdraw.h"
#include "unused_methods.h"

#include <vector>

namespace
{
/// Bytes behind each row of a surface, so that the pitch is not the width.
constexpr LONG ROW_PADDING = 64;

HRESULT Result(const char* call)
{
    return fake.Enter(call) ? DDERR_GENERIC : DD_OK;
}

/// Counts itself among the living objects; deletes itself when its last reference goes.
template <typename Interface>
class Counted : public Interface
{
public:
    Counted() { ++fake.directDrawObjects; }
    virtual ~Counted() { --fake.directDrawObjects; }
    ULONG WINAPI Release() override
    {
        delete this;
        return 0;
    }
};

struct Clipper : Counted<ClipperBase> {
    HRESULT WINAPI SetHWnd(DWORD, HWND) override { return Result("SetHWnd"); }
};

class Surface : public Counted<SurfaceBase>
{
public:
    Surface()
        : pitch(fake.modeWidth * 2 + ROW_PADDING),
          memory(static_cast<size_t>(pitch) * static_cast<size_t>(fake.modeHeight))
    {
    }

    HRESULT WINAPI Blt(RECT*, IDirectDrawSurface* source, RECT*, DWORD, DDBLTFX*) override
    {
        if (fake.Enter("Blt"))
            return DDERR_GENERIC;
        const auto* from = static_cast<Surface*>(source);
        fake.screen.clear();
        for (int y = 0; y < fake.modeHeight; ++y) {
            const auto* row = reinterpret_cast<const uint16_t*>(from->memory.data() + y * from->pitch);
            fake.screen.insert(fake.screen.end(), row, row + fake.modeWidth);
        }
        ++fake.framesPresented;
        return DD_OK;
    }
    HRESULT WINAPI GetAttachedSurface(DDSCAPS*, IDirectDrawSurface** surface) override
    {
        if (fake.Enter("GetAttachedSurface"))
            return DDERR_GENERIC;
        *surface = new Surface;
        return DD_OK;
    }
    HRESULT WINAPI GetPixelFormat(DDPIXELFORMAT* format) override
    {
        format->dwGBitMask = fake.greenMask;
        return Result("GetPixelFormat");
    }
    HRESULT WINAPI IsLost() override { return fake.surfacesLost ? DDERR_SURFACELOST : DD_OK; }
    HRESULT WINAPI Lock(RECT*, DDSURFACEDESC* description, DWORD, HANDLE) override
    {
        if (fake.Enter("Lock"))
            return DDERR_GENERIC;
        description->lpSurface = memory.data();
        description->lPitch = pitch;
        return DD_OK;
    }
    HRESULT WINAPI Restore() override
    {
        fake.surfacesLost = false;
        return Result("Restore");
    }
    HRESULT WINAPI SetClipper(IDirectDrawClipper*) override { return Result("SetClipper"); }
    HRESULT WINAPI Unlock(LPVOID) override { return Result("Unlock"); }

private:
    LONG pitch;
    std::vector<uint8_t> memory;
};

struct DirectDraw : Counted<DirectDrawBase> {
    HRESULT WINAPI CreateClipper(DWORD, IDirectDrawClipper** clipper, IUnknown*) override
    {
        if (fake.Enter("CreateClipper"))
            return DDERR_GENERIC;
        *clipper = new Clipper;
        return DD_OK;
    }
    HRESULT WINAPI CreateSurface(DDSURFACEDESC*, IDirectDrawSurface** surface, IUnknown*) override
    {
        if (fake.Enter("CreateSurface"))
            return DDERR_GENERIC;
        *surface = new Surface;
        return DD_OK;
    }
    HRESULT WINAPI RestoreDisplayMode() override
    {
        fake.fullScreen = false;
        return Result("RestoreDisplayMode");
    }
    HRESULT WINAPI SetCooperativeLevel(HWND, DWORD) override { return Result("SetCooperativeLevel"); }
    HRESULT WINAPI SetDisplayMode(DWORD width, DWORD height, DWORD) override
    {
        if (fake.Enter("SetDisplayMode"))
            return DDERR_GENERIC;
        fake.fullScreen = true;
        fake.modeWidth = static_cast<int>(width);
        fake.modeHeight = static_cast<int>(height);
        return DD_OK;
    }
};
}

HRESULT WINAPI DirectDrawCreate(GUID*, IDirectDraw** directDraw, IUnknown*)
{
    if (fake.Enter("DirectDrawCreate"))
        return DDERR_GENERIC;
    *directDraw = new DirectDraw;
    return DD_OK;
}
