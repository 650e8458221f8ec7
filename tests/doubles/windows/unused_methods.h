#pragma once

#include "platform/directdraw.h"
#include "platform/directsound.h"

// The base of each fake object: the system's interface, with the methods that the game never calls.

template <typename Interface>
struct UnknownBase : Interface {
    HRESULT WINAPI QueryInterface(REFIID, void**) override { return E_NOTIMPL; }
    ULONG WINAPI AddRef() override { return 1; }
};

struct DirectDrawBase : UnknownBase<IDirectDraw> {
    HRESULT WINAPI Compact() override { return E_NOTIMPL; }
    HRESULT WINAPI CreatePalette(DWORD, PALETTEENTRY*, IDirectDrawPalette**, IUnknown*) override { return E_NOTIMPL; }
    HRESULT WINAPI DuplicateSurface(IDirectDrawSurface*, IDirectDrawSurface**) override { return E_NOTIMPL; }
    HRESULT WINAPI EnumDisplayModes(DWORD, DDSURFACEDESC*, void*, LPDDENUMMODESCALLBACK) override { return E_NOTIMPL; }
    HRESULT WINAPI EnumSurfaces(DWORD, DDSURFACEDESC*, void*, LPDDENUMSURFACESCALLBACK) override { return E_NOTIMPL; }
    HRESULT WINAPI FlipToGDISurface() override { return E_NOTIMPL; }
    HRESULT WINAPI GetCaps(DDCAPS*, DDCAPS*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetDisplayMode(DDSURFACEDESC*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetFourCCCodes(DWORD*, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetGDISurface(IDirectDrawSurface**) override { return E_NOTIMPL; }
    HRESULT WINAPI GetMonitorFrequency(DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetScanLine(DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetVerticalBlankStatus(BOOL*) override { return E_NOTIMPL; }
    HRESULT WINAPI Initialize(GUID*) override { return E_NOTIMPL; }
    HRESULT WINAPI WaitForVerticalBlank(DWORD, HANDLE) override { return E_NOTIMPL; }
};

struct ClipperBase : UnknownBase<IDirectDrawClipper> {
    HRESULT WINAPI GetClipList(RECT*, RGNDATA*, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetHWnd(HWND*) override { return E_NOTIMPL; }
    HRESULT WINAPI Initialize(IDirectDraw*, DWORD) override { return E_NOTIMPL; }
    HRESULT WINAPI IsClipListChanged(BOOL*) override { return E_NOTIMPL; }
    HRESULT WINAPI SetClipList(RGNDATA*, DWORD) override { return E_NOTIMPL; }
};

struct SurfaceBase : UnknownBase<IDirectDrawSurface> {
    HRESULT WINAPI AddAttachedSurface(IDirectDrawSurface*) override { return E_NOTIMPL; }
    HRESULT WINAPI AddOverlayDirtyRect(RECT*) override { return E_NOTIMPL; }
    HRESULT WINAPI BltBatch(DDBLTBATCH*, DWORD, DWORD) override { return E_NOTIMPL; }
    HRESULT WINAPI BltFast(DWORD, DWORD, IDirectDrawSurface*, RECT*, DWORD) override { return E_NOTIMPL; }
    HRESULT WINAPI DeleteAttachedSurface(DWORD, IDirectDrawSurface*) override { return E_NOTIMPL; }
    HRESULT WINAPI EnumAttachedSurfaces(void*, LPDDENUMSURFACESCALLBACK) override { return E_NOTIMPL; }
    HRESULT WINAPI EnumOverlayZOrders(DWORD, void*, LPDDENUMSURFACESCALLBACK) override { return E_NOTIMPL; }
    HRESULT WINAPI Flip(IDirectDrawSurface*, DWORD) override { return E_NOTIMPL; }
    HRESULT WINAPI GetBltStatus(DWORD) override { return E_NOTIMPL; }
    HRESULT WINAPI GetCaps(DDSCAPS*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetClipper(IDirectDrawClipper**) override { return E_NOTIMPL; }
    HRESULT WINAPI GetColorKey(DWORD, DDCOLORKEY*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetDC(HDC*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetFlipStatus(DWORD) override { return E_NOTIMPL; }
    HRESULT WINAPI GetOverlayPosition(LONG*, LONG*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetPalette(IDirectDrawPalette**) override { return E_NOTIMPL; }
    HRESULT WINAPI GetSurfaceDesc(DDSURFACEDESC*) override { return E_NOTIMPL; }
    HRESULT WINAPI Initialize(IDirectDraw*, DDSURFACEDESC*) override { return E_NOTIMPL; }
    HRESULT WINAPI ReleaseDC(HDC) override { return E_NOTIMPL; }
    HRESULT WINAPI SetColorKey(DWORD, DDCOLORKEY*) override { return E_NOTIMPL; }
    HRESULT WINAPI SetOverlayPosition(LONG, LONG) override { return E_NOTIMPL; }
    HRESULT WINAPI SetPalette(IDirectDrawPalette*) override { return E_NOTIMPL; }
    HRESULT WINAPI UpdateOverlay(RECT*, IDirectDrawSurface*, RECT*, DWORD, DDOVERLAYFX*) override { return E_NOTIMPL; }
    HRESULT WINAPI UpdateOverlayDisplay(DWORD) override { return E_NOTIMPL; }
    HRESULT WINAPI UpdateOverlayZOrder(DWORD, IDirectDrawSurface*) override { return E_NOTIMPL; }
};

struct DirectSoundBase : UnknownBase<IDirectSound> {
    HRESULT WINAPI GetCaps(DSCAPS*) override { return E_NOTIMPL; }
    HRESULT WINAPI DuplicateSoundBuffer(IDirectSoundBuffer*, IDirectSoundBuffer**) override { return E_NOTIMPL; }
    HRESULT WINAPI Compact() override { return E_NOTIMPL; }
    HRESULT WINAPI GetSpeakerConfig(DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI SetSpeakerConfig(DWORD) override { return E_NOTIMPL; }
    HRESULT WINAPI Initialize(const GUID*) override { return E_NOTIMPL; }
};

struct SoundBufferBase : UnknownBase<IDirectSoundBuffer> {
    HRESULT WINAPI GetCaps(DSBCAPS*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetCurrentPosition(DWORD*, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetFormat(WAVEFORMATEX*, DWORD, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetVolume(LONG*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetPan(LONG*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetFrequency(DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetStatus(DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI Initialize(IDirectSound*, const DSBUFFERDESC*) override { return E_NOTIMPL; }
    HRESULT WINAPI SetVolume(LONG) override { return E_NOTIMPL; }
    HRESULT WINAPI SetPan(LONG) override { return E_NOTIMPL; }
    HRESULT WINAPI SetFrequency(DWORD) override { return E_NOTIMPL; }
};
