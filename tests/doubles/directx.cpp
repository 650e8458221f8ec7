#include "doubles/directx.h"

#include <utility>

DirectXDouble directX;

void DirectXDouble::Fail(const std::string& call, int times, HRESULT result)
{
    failing = call;
    failures = times;
    failure = result;
}

std::string DirectXDouble::TakeCalls()
{
    return std::exchange(calls, "");
}

HRESULT DirectXDouble::Step(const std::string& call, std::initializer_list<DWORD> numbers)
{
    calls += (calls.empty() ? "" : ", ") + call;
    for (const DWORD number : numbers)
        calls += " " + std::to_string(number);
    return call == failing && failures-- > 0 ? failure : DD_OK;
}

namespace
{
/// Counts itself among the living objects; deletes itself when it is released.
template <typename Interface>
struct Counted : Interface {
    Counted() { ++directX.objects; }
    virtual ~Counted() { --directX.objects; }
    ULONG Release() override
    {
        delete this;
        return 0;
    }
};

/// Makes the object if the step succeeds.
template <typename Object, typename Interface, typename... Arguments>
HRESULT Make(Interface** made, HRESULT result, Arguments... arguments)
{
    if (result == DD_OK)
        *made = new Object(arguments...);
    return result;
}

struct Clipper : Counted<IDirectDrawClipper> {
    HRESULT SetHWnd(DWORD flags, HWND) override { return directX.Step("SetHWnd", { flags }); }
};

struct Surface : Counted<IDirectDrawSurface> {
    static constexpr LONG WIDTH = 640;
    static constexpr LONG HEIGHT = 480;
    static constexpr LONG PITCH = WIDTH + 32; ///< pixels: a surface's rows may lie apart

    HRESULT Blt(RECT*, IDirectDrawSurface* source, RECT*, DWORD flags, DDBLTFX*) override
    {
        const auto from = static_cast<Surface*>(source)->pixels.begin();
        directX.screen.clear();
        for (LONG y = 0; y < HEIGHT && from[PITCH * HEIGHT] == 1; ++y) // nothing was written behind the last row
            directX.screen.insert(directX.screen.end(), from + y * PITCH, from + y * PITCH + WIDTH);
        return directX.Step("Blt", { flags });
    }
    HRESULT GetAttachedSurface(DDSCAPS* wanted, IDirectDrawSurface** surface) override
    {
        return Make<Surface>(surface, directX.Step("GetAttachedSurface", { wanted->dwCaps }));
    }
    HRESULT GetPixelFormat(DDPIXELFORMAT* format) override
    {
        format->dwGBitMask = directX.greenMask;
        return directX.Step("GetPixelFormat", { format->dwSize == sizeof *format });
    }
    HRESULT IsLost() override { return directX.surfacesLost ? DDERR_SURFACELOST : DD_OK; }
    HRESULT Lock(RECT*, DDSURFACEDESC* description, DWORD flags, HANDLE) override
    {
        description->lpSurface = pixels.data();
        description->lPitch = 2 * PITCH;
        return directX.Step("Lock", { flags });
    }
    HRESULT Restore() override { return directX.Step("Restore"); }
    HRESULT SetClipper(IDirectDrawClipper*) override { return directX.Step("SetClipper"); }
    HRESULT Unlock(LPVOID) override { return directX.Step("Unlock"); }

    std::vector<uint16_t> pixels = std::vector<uint16_t>(PITCH * (HEIGHT + 1), 1);
};

struct DirectDraw : Counted<IDirectDraw> {
    HRESULT CreateClipper(DWORD flags, IDirectDrawClipper** clipper, IUnknown*) override
    {
        return Make<Clipper>(clipper, directX.Step("CreateClipper", { flags }));
    }
    HRESULT CreateSurface(DDSURFACEDESC* description, IDirectDrawSurface** surface, IUnknown*) override
    {
        return Make<Surface>(
            surface, directX.Step("CreateSurface", { description->dwSize == sizeof *description, description->dwFlags,
                                                     description->ddsCaps.dwCaps, description->dwBackBufferCount }));
    }
    HRESULT RestoreDisplayMode() override { return directX.Step("RestoreDisplayMode"); }
    HRESULT SetCooperativeLevel(HWND, DWORD level) override { return directX.Step("SetCooperativeLevel", { level }); }
    HRESULT SetDisplayMode(DWORD width, DWORD height, DWORD bits) override
    {
        return directX.Step("SetDisplayMode", { width, height, bits });
    }
};

struct SoundBuffer : Counted<IDirectSoundBuffer> {
    explicit SoundBuffer(const DSBUFFERDESC& description) : bytes(description.dwBufferBytes, 0)
    {
        if ((description.dwFlags & DSBCAPS_PRIMARYBUFFER) == 0)
            directX.buffers.push_back(&bytes);
    }
    ~SoundBuffer() override { std::erase(directX.buffers, &bytes); }
    HRESULT Lock(DWORD from, DWORD count, LPVOID* first, DWORD* firstBytes, LPVOID*, DWORD*, DWORD flags) override
    {
        *first = bytes.data();
        *firstBytes = static_cast<DWORD>(bytes.size());
        return directX.Step("LockSound", { from, count, flags });
    }
    HRESULT Play(DWORD, DWORD, DWORD flags) override { return directX.Step("Play", { number, flags }); }
    HRESULT SetCurrentPosition(DWORD position) override { return directX.Step("SetCurrentPosition", { position }); }
    HRESULT SetFormat(const WAVEFORMATEX* format) override
    {
        return directX.Step("SetFormat", { format->wFormatTag, format->nChannels, format->nSamplesPerSec,
                                           format->nAvgBytesPerSec, format->nBlockAlign, format->wBitsPerSample });
    }
    HRESULT Stop() override { return directX.Step("Stop", { number }); }
    HRESULT Unlock(LPVOID, DWORD one, LPVOID, DWORD two) override { return directX.Step("UnlockSound", { one, two }); }
    HRESULT Restore() override { return directX.Step("RestoreSound"); }

    std::string bytes;
    DWORD number = static_cast<DWORD>(directX.buffers.size()); ///< in order of creation
};

struct SoundDevice : Counted<IDirectSound> {
    HRESULT CreateSoundBuffer(const DSBUFFERDESC* description, IDirectSoundBuffer** buffer, IUnknown*) override
    {
        const DWORD rate = description->lpwfxFormat ? description->lpwfxFormat->nSamplesPerSec : 0;
        return Make<SoundBuffer>(buffer, directX.Step("CreateSoundBuffer", { description->dwFlags, rate }),
                                 *description);
    }
    HRESULT SetCooperativeLevel(HWND, DWORD level) override { return directX.Step("SetSoundLevel", { level }); }
};
}

HRESULT DirectDrawCreate(GUID*, IDirectDraw** directDraw, IUnknown*)
{
    return Make<DirectDraw>(directDraw, directX.Step("DirectDrawCreate"));
}

HRESULT DirectSoundCreate(const GUID*, IDirectSound** directSound, IUnknown*)
{
    return Make<SoundDevice>(directSound, directX.Step("DirectSoundCreate"));
}
