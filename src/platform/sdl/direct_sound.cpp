#include "platform/directsound.h"
#include "platform/posix/out_of_memory.h"
#include "platform/sdl/sound_output.h"

#include <memory>
#include <optional>
#include <string>

namespace
{
constexpr DWORD LARGEST_BUFFER = 32 << 20; ///< bytes; the game's longest sound takes a sixth of it
constexpr DWORD LOWEST_RATE = 4000;
constexpr DWORD HIGHEST_RATE = 192000;

/// The driver asked for when there was no device. It is not tried again: the game asks twice at its start, and a
/// library that finds no device writes its complaint each time.
std::optional<std::string> failedDriver;

bool IsPlayable(const WAVEFORMATEX& format)
{
    return format.wFormatTag == WAVE_FORMAT_PCM && (format.nChannels == 1 || format.nChannels == 2) &&
           (format.wBitsPerSample == 8 || format.wBitsPerSample == 16) &&
           format.nBlockAlign == format.nChannels * format.wBitsPerSample / 8 && format.nSamplesPerSec >= LOWEST_RATE &&
           format.nSamplesPerSec <= HIGHEST_RATE;
}

/// Stands for the mix. It has a format to set, but no samples and no voice.
class PrimaryBuffer final : public IDirectSoundBuffer
{
public:
    explicit PrimaryBuffer(std::shared_ptr<SoundOutput> soundOutput) : output(std::move(soundOutput)) {}

    ULONG Release() override
    {
        delete this;
        return 0;
    }
    HRESULT Lock(DWORD, DWORD, LPVOID*, DWORD*, LPVOID*, DWORD*, DWORD) override { return DSERR_INVALIDCALL; }
    HRESULT Play(DWORD, DWORD, DWORD) override { return DS_OK; }
    HRESULT SetCurrentPosition(DWORD) override { return DSERR_INVALIDCALL; }
    /// The mix keeps its own format, and SDL converts it to what the device takes.
    HRESULT SetFormat(const WAVEFORMATEX* format) override
    {
        return format && IsPlayable(*format) ? DS_OK : DSERR_BADFORMAT;
    }
    HRESULT Stop() override { return DS_OK; }
    HRESULT Unlock(LPVOID, DWORD, LPVOID, DWORD) override { return DSERR_INVALIDCALL; }
    HRESULT Restore() override { return DS_OK; }

private:
    std::shared_ptr<SoundOutput> output;
};

/// One voice of the mix. Its memory is never lost, and it is written while the voice stands still.
class StaticBuffer final : public IDirectSoundBuffer
{
public:
    StaticBuffer(std::shared_ptr<SoundOutput> soundOutput, Voice* mixerVoice)
        : output(std::move(soundOutput)), voice(mixerVoice)
    {
    }

    ULONG Release() override
    {
        output->mixer.RemoveVoice(voice);
        delete this;
        return 0;
    }
    HRESULT Lock(DWORD offset, DWORD bytes, LPVOID* first, DWORD* firstBytes, LPVOID* second, DWORD* secondBytes,
                 DWORD flags) override;
    HRESULT Play(DWORD, DWORD, DWORD flags) override
    {
        output->mixer.Play(*voice, (flags & DSBPLAY_LOOPING) != 0);
        return DS_OK;
    }
    HRESULT SetCurrentPosition(DWORD position) override
    {
        if (position >= voice->byteCount)
            return DSERR_INVALIDPARAM;
        output->mixer.SetPosition(*voice, position);
        return DS_OK;
    }
    HRESULT SetFormat(const WAVEFORMATEX*) override { return DSERR_INVALIDCALL; }
    HRESULT Stop() override
    {
        output->mixer.Stop(*voice);
        return DS_OK;
    }
    HRESULT Unlock(LPVOID, DWORD, LPVOID, DWORD) override { return DS_OK; }
    HRESULT Restore() override { return DS_OK; }

private:
    std::shared_ptr<SoundOutput> output;
    Voice* voice;
};

/// Always the whole buffer, so that there is never a second region.
HRESULT StaticBuffer::Lock(DWORD, DWORD, LPVOID* first, DWORD* firstBytes, LPVOID* second, DWORD* secondBytes,
                           DWORD flags)
{
    if (!first || !firstBytes || (flags & DSBLOCK_ENTIREBUFFER) == 0)
        return DSERR_INVALIDPARAM;
    *first = voice->bytes.get();
    *firstBytes = voice->byteCount;
    if (second)
        *second = nullptr;
    if (secondBytes)
        *secondBytes = 0;
    return DS_OK;
}

class SoundDevice final : public IDirectSound
{
public:
    explicit SoundDevice(std::shared_ptr<SoundOutput> soundOutput) : output(std::move(soundOutput)) {}

    ULONG Release() override
    {
        delete this;
        return 0;
    }
    HRESULT CreateSoundBuffer(const DSBUFFERDESC* description, IDirectSoundBuffer** buffer, IUnknown*) override;
    /// Every level is one to us: the mix never takes the device from other programs.
    HRESULT SetCooperativeLevel(HWND, DWORD) override { return DS_OK; }

private:
    HRESULT CreateStaticBuffer(const DSBUFFERDESC& description, IDirectSoundBuffer** buffer);

    std::shared_ptr<SoundOutput> output;
};

HRESULT SoundDevice::CreateSoundBuffer(const DSBUFFERDESC* description, IDirectSoundBuffer** buffer, IUnknown*)
{
    if (!description || !buffer || description->dwSize != sizeof *description)
        return DSERR_INVALIDPARAM;
    *buffer = nullptr;
    if ((description->dwFlags & DSBCAPS_PRIMARYBUFFER) == 0)
        return OrOutOfMemory(DSERR_OUTOFMEMORY, [=, this] { return CreateStaticBuffer(*description, buffer); });
    if (description->dwBufferBytes != 0 || description->lpwfxFormat)
        return DSERR_INVALIDPARAM;
    *buffer = new (std::nothrow) PrimaryBuffer(output);
    return *buffer ? DS_OK : DSERR_OUTOFMEMORY;
}

HRESULT SoundDevice::CreateStaticBuffer(const DSBUFFERDESC& description, IDirectSoundBuffer** buffer)
{
    if (!description.lpwfxFormat)
        return DSERR_INVALIDPARAM;
    const WAVEFORMATEX& wave = *description.lpwfxFormat;
    if (!IsPlayable(wave))
        return DSERR_BADFORMAT;
    if (description.dwBufferBytes < wave.nBlockAlign || description.dwBufferBytes > LARGEST_BUFFER)
        return DSERR_INVALIDPARAM;
    Voice* const voice =
        output->mixer.AddVoice({ wave.nChannels, wave.wBitsPerSample, wave.nSamplesPerSec }, description.dwBufferBytes);
    if (!voice)
        return DSERR_OUTOFMEMORY;
    *buffer = new StaticBuffer(output, voice);
    return DS_OK;
}
}

HRESULT DirectSoundCreate(const GUID*, IDirectSound** directSound, IUnknown*)
{
    if (!directSound)
        return DSERR_INVALIDPARAM;
    return OrOutOfMemory(DSERR_OUTOFMEMORY, [directSound] {
        const char* const hint = SDL_GetHint(SDL_HINT_AUDIODRIVER);
        const std::string driver = hint ? hint : "";
        if (driver == failedDriver)
            return DSERR_NODRIVER;
        auto output = std::make_shared<SoundOutput>();
        if (!output->Open()) {
            failedDriver = driver;
            return DSERR_NODRIVER;
        }
        *directSound = new SoundDevice(std::move(output));
        return DS_OK;
    });
}
