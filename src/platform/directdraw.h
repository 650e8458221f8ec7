#pragma once

/// Exclusive full screen (DirectDraw). Every method answers 0 (DD_OK) for success.
#ifdef _WIN32
#include <ddraw.h>
#else
#include "platform/types.h"

constexpr HRESULT DD_OK = 0;
constexpr HRESULT DDERR_OUTOFMEMORY = static_cast<HRESULT>(0x8007000E);
constexpr HRESULT DDERR_GENERIC = static_cast<HRESULT>(0x80004005);
constexpr HRESULT DDERR_SURFACELOST = static_cast<HRESULT>(0x887601C2);
constexpr DWORD DDSCL_FULLSCREEN = 0x00000001;
constexpr DWORD DDSCL_NORMAL = 0x00000008;
constexpr DWORD DDSCL_EXCLUSIVE = 0x00000010;
constexpr DWORD DDSD_CAPS = 0x00000001;
constexpr DWORD DDSD_BACKBUFFERCOUNT = 0x00000020;
constexpr DWORD DDSCAPS_BACKBUFFER = 0x00000004;
constexpr DWORD DDSCAPS_COMPLEX = 0x00000008;
constexpr DWORD DDSCAPS_FLIP = 0x00000010;
constexpr DWORD DDSCAPS_PRIMARYSURFACE = 0x00000200;
constexpr DWORD DDSCAPS_3DDEVICE = 0x00002000;
constexpr DWORD DDLOCK_WAIT = 0x00000001;
constexpr DWORD DDBLT_WAIT = 0x01000000;

struct DDSCAPS {
    DWORD dwCaps;
};

/// Only the fields that the game reads.
struct DDPIXELFORMAT {
    DWORD dwSize;
    DWORD dwFlags;
    DWORD dwRGBBitCount;
    DWORD dwRBitMask;
    DWORD dwGBitMask;
    DWORD dwBBitMask;
};

struct DDSURFACEDESC {
    DWORD dwSize;
    DWORD dwFlags;
    DWORD dwHeight;
    DWORD dwWidth;
    LONG lPitch;
    DWORD dwBackBufferCount;
    LPVOID lpSurface;
    DDPIXELFORMAT ddpfPixelFormat;
    DDSCAPS ddsCaps;
};

struct DDBLTFX;
struct IUnknown;

struct IDirectDrawClipper {
    virtual ULONG Release() = 0;
    virtual HRESULT SetHWnd(DWORD flags, HWND window) = 0;

protected:
    ~IDirectDrawClipper() = default;
};

struct IDirectDrawSurface {
    virtual ULONG Release() = 0;
    virtual HRESULT Blt(RECT* target, IDirectDrawSurface* source, RECT* sourceRect, DWORD flags, DDBLTFX* effects) = 0;
    virtual HRESULT GetAttachedSurface(DDSCAPS* caps, IDirectDrawSurface** surface) = 0;
    virtual HRESULT GetPixelFormat(DDPIXELFORMAT* format) = 0;
    virtual HRESULT IsLost() = 0;
    virtual HRESULT Lock(RECT* area, DDSURFACEDESC* description, DWORD flags, HANDLE event) = 0;
    virtual HRESULT Restore() = 0;
    virtual HRESULT SetClipper(IDirectDrawClipper* clipper) = 0;
    virtual HRESULT Unlock(LPVOID surface) = 0;

protected:
    ~IDirectDrawSurface() = default;
};

struct IDirectDraw {
    virtual ULONG Release() = 0;
    virtual HRESULT CreateClipper(DWORD flags, IDirectDrawClipper** clipper, IUnknown* outer) = 0;
    virtual HRESULT CreateSurface(DDSURFACEDESC* description, IDirectDrawSurface** surface, IUnknown* outer) = 0;
    virtual HRESULT RestoreDisplayMode() = 0;
    virtual HRESULT SetCooperativeLevel(HWND window, DWORD flags) = 0;
    virtual HRESULT SetDisplayMode(DWORD width, DWORD height, DWORD bitsPerPixel) = 0;

protected:
    ~IDirectDraw() = default;
};

/// The caller releases the object.
HRESULT DirectDrawCreate(GUID* driver, IDirectDraw** directDraw, IUnknown* outer);
#endif
