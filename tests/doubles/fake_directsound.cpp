#include "doubles/fake_platform.h"
#include "platform/directsound.h"
#include "unused_methods.h"

#include <algorithm>

namespace
{
class Buffer : public SoundBufferBase, public FakeSoundBuffer
{
public:
    explicit Buffer(const DSBUFFERDESC& description) : isPrimary((description.dwFlags & DSBCAPS_PRIMARYBUFFER) != 0)
    {
        ++fake.soundObjects;
        if (isPrimary)
            return;
        bytes.resize(description.dwBufferBytes);
        samplesPerSecond = description.lpwfxFormat->nSamplesPerSec;
        fake.soundBuffers.push_back(this);
    }
    virtual ~Buffer()
    {
        --fake.soundObjects;
        std::erase(fake.soundBuffers, this);
    }

    ULONG WINAPI Release() override
    {
        delete this;
        return 0;
    }
    HRESULT WINAPI Lock(DWORD, DWORD, LPVOID* first, DWORD* firstBytes, LPVOID*, DWORD*, DWORD) override
    {
        if (fake.Enter("SoundBuffer.Lock"))
            return DSERR_BUFFERLOST;
        *first = bytes.data();
        *firstBytes = static_cast<DWORD>(bytes.size());
        return DS_OK;
    }
    HRESULT WINAPI Play(DWORD, DWORD, DWORD flags) override
    {
        if (fake.Enter("SoundBuffer.Play"))
            return DSERR_BUFFERLOST;
        ++plays;
        playing = true;
        looping = (flags & DSBPLAY_LOOPING) != 0;
        return DS_OK;
    }
    HRESULT WINAPI SetCurrentPosition(DWORD) override { return Result("SoundBuffer.SetCurrentPosition"); }
    HRESULT WINAPI SetFormat(const WAVEFORMATEX*) override { return Result("SoundBuffer.SetFormat"); }
    HRESULT WINAPI Stop() override
    {
        ++stops;
        playing = false;
        return Result("SoundBuffer.Stop");
    }
    HRESULT WINAPI Unlock(LPVOID, DWORD, LPVOID, DWORD) override { return Result("SoundBuffer.Unlock"); }
    HRESULT WINAPI Restore() override { return Result("SoundBuffer.Restore"); }

private:
    static HRESULT Result(const char* call) { return fake.Enter(call) ? DSERR_BUFFERLOST : DS_OK; }

    bool isPrimary;
};

struct Device : DirectSoundBase {
    Device() { ++fake.soundObjects; }
    virtual ~Device() { --fake.soundObjects; }
    ULONG WINAPI Release() override
    {
        delete this;
        return 0;
    }
    HRESULT WINAPI CreateSoundBuffer(const DSBUFFERDESC* description, IDirectSoundBuffer** buffer, IUnknown*) override
    {
        const bool isPrimary = (description->dwFlags & DSBCAPS_PRIMARYBUFFER) != 0;
        if (fake.Enter(isPrimary ? "CreatePrimaryBuffer" : "CreateSoundBuffer"))
            return DSERR_OUTOFMEMORY;
        if (!isPrimary && description->dwBufferBytes == 0)
            return DSERR_INVALIDPARAM;
        *buffer = new Buffer(*description);
        return DS_OK;
    }
    HRESULT WINAPI SetCooperativeLevel(HWND, DWORD level) override
    {
        return fake.Enter(level == DSSCL_PRIORITY ? "SetPriorityLevel" : "SetNormalLevel") ? DSERR_INVALIDPARAM : DS_OK;
    }
};
}

HRESULT WINAPI DirectSoundCreate(const GUID*, IDirectSound** directSound, IUnknown*)
{
    if (fake.Enter("DirectSoundCreate"))
        return DSERR_NODRIVER;
    *directSound = new Device;
    return DS_OK;
}
