#pragma once

/// Sound device and static sound buffers (DirectSound). Every method answers 0 (DS_OK) for success.
#ifdef _WIN32
#include "platform/multimedia.h"

#include <dsound.h>
#else
#include "platform/multimedia.h"
#include "platform/types.h"

constexpr HRESULT DS_OK = 0;
constexpr HRESULT DSERR_INVALIDPARAM = static_cast<HRESULT>(0x80070057);
constexpr HRESULT DSERR_INVALIDCALL = static_cast<HRESULT>(0x88780032);
constexpr HRESULT DSERR_BADFORMAT = static_cast<HRESULT>(0x88780064);
constexpr HRESULT DSERR_NODRIVER = static_cast<HRESULT>(0x88780078);
constexpr HRESULT DSERR_BUFFERLOST = static_cast<HRESULT>(0x88780096);
constexpr HRESULT DSERR_OUTOFMEMORY = static_cast<HRESULT>(0x8007000E);
constexpr DWORD DSSCL_NORMAL = 1;
constexpr DWORD DSSCL_PRIORITY = 2;
constexpr DWORD DSBCAPS_PRIMARYBUFFER = 0x00000001;
constexpr DWORD DSBCAPS_LOCSOFTWARE = 0x00000008;
constexpr DWORD DSBCAPS_CTRLPAN = 0x00000040;
constexpr DWORD DSBCAPS_CTRLVOLUME = 0x00000080;
constexpr DWORD DSBPLAY_LOOPING = 1;
constexpr DWORD DSBLOCK_ENTIREBUFFER = 2;

struct DSBUFFERDESC {
    DWORD dwSize;
    DWORD dwFlags;
    DWORD dwBufferBytes;
    DWORD dwReserved;
    WAVEFORMATEX* lpwfxFormat;
    GUID guid3DAlgorithm;
};

struct IUnknown;

/// A voice: playing one that plays goes on from where it is, stopping keeps the position, and a sound that has
/// played to its end stands at its start. A playing voice is silent, but not stopped, while the window lacks focus.
struct IDirectSoundBuffer {
    virtual ULONG Release() = 0;
    virtual HRESULT Lock(DWORD offset, DWORD bytes, LPVOID* first, DWORD* firstBytes, LPVOID* second,
                         DWORD* secondBytes, DWORD flags) = 0;
    virtual HRESULT Play(DWORD reserved, DWORD priority, DWORD flags) = 0;
    virtual HRESULT SetCurrentPosition(DWORD position) = 0;
    virtual HRESULT SetFormat(const WAVEFORMATEX* format) = 0;
    virtual HRESULT Stop() = 0;
    virtual HRESULT Unlock(LPVOID first, DWORD firstBytes, LPVOID second, DWORD secondBytes) = 0;
    virtual HRESULT Restore() = 0;

protected:
    ~IDirectSoundBuffer() = default;
};

struct IDirectSound {
    virtual ULONG Release() = 0;
    virtual HRESULT CreateSoundBuffer(const DSBUFFERDESC* description, IDirectSoundBuffer** buffer,
                                      IUnknown* outer) = 0;
    virtual HRESULT SetCooperativeLevel(HWND window, DWORD level) = 0;

protected:
    ~IDirectSound() = default;
};

/// The caller releases the device. Fails where there is no audio output.
HRESULT DirectSoundCreate(const GUID* device, IDirectSound** directSound, IUnknown* outer);
#endif
