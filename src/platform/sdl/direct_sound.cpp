#include "platform/directsound.h"
#include "platform/posix/out_of_memory.h"
#include "platform/sdl/one_reference.h"
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

/// Stands for the mix, which keeps its own format; SDL converts it to what the device takes.
class PrimaryBuffer final : public COneReference<IDirectSoundBuffer>
{
public:
    HRESULT Lock(DWORD, DWORD, LPVOID*, DWORD*, LPVOID*, DWORD*, DWORD) override { return DSERR_INVALIDCALL; }
    HRESULT Play(DWORD, DWORD, DWORD) override { return DS_OK; }
    HRESULT SetCurrentPosition(DWORD) override { return DSERR_INVALIDCALL; }
    HRESULT SetFormat(const WAVEFORMATEX*) override { return DS_OK; }
    HRESULT Stop() override { return DS_OK; }
    HRESULT Unlock(LPVOID, DWORD, LPVOID, DWORD) override { return DSERR_INVALIDCALL; }
    HRESULT Restore() override { return DS_OK; }
};

/// One voice of the mix. Its memory is never lost, and it is written while the voice stands still.
class StaticBuffer final : public COneReference<IDirectSoundBuffer>
{
public:
    StaticBuffer(std::shared_ptr<SoundOutput> soundOutput, Voice* mixerVoice)
        : output(std::move(soundOutput)), voice(mixerVoice)
    {
    }
    ~StaticBuffer() override { output->mixer.RemoveVoice(voice); }

    /// The whole buffer, so that there is never a second region.
    HRESULT Lock(DWORD, DWORD, LPVOID* first, DWORD* firstBytes, LPVOID*, DWORD*, DWORD) override
    {
        *first = voice->bytes.get();
        *firstBytes = voice->byteCount;
        return DS_OK;
    }
    HRESULT Play(DWORD, DWORD, DWORD flags) override
    {
        output->mixer.Play(*voice, flags == DSBPLAY_LOOPING);
        return DS_OK;
    }
    /// Only new buffers are filled, which stand at their start.
    HRESULT SetCurrentPosition(DWORD) override { return DS_OK; }
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

class SoundDevice final : public COneReference<IDirectSound>
{
public:
    explicit SoundDevice(std::shared_ptr<SoundOutput> soundOutput) : output(std::move(soundOutput)) {}

    HRESULT CreateSoundBuffer(const DSBUFFERDESC* description, IDirectSoundBuffer** buffer, IUnknown*) override
    {
        return OrOutOfMemory(DSERR_OUTOFMEMORY, [=, this] {
            if (description->dwFlags & DSBCAPS_PRIMARYBUFFER) {
                *buffer = new PrimaryBuffer;
                return DS_OK;
            }
            return CreateStaticBuffer(*description->lpwfxFormat, description->dwBufferBytes, buffer);
        });
    }
    /// Every level is one to us: the mix never takes the device from other programs.
    HRESULT SetCooperativeLevel(HWND, DWORD) override { return DS_OK; }

private:
    HRESULT CreateStaticBuffer(const WAVEFORMATEX& wave, DWORD bytes, IDirectSoundBuffer** buffer);

    std::shared_ptr<SoundOutput> output;
};

HRESULT SoundDevice::CreateStaticBuffer(const WAVEFORMATEX& wave, DWORD bytes, IDirectSoundBuffer** buffer)
{
    if (!IsPlayable(wave))
        return DSERR_BADFORMAT;
    if (bytes < wave.nBlockAlign || bytes > LARGEST_BUFFER)
        return DSERR_INVALIDPARAM;
    Voice* const voice = output->mixer.AddVoice({ wave.nChannels, wave.wBitsPerSample, wave.nSamplesPerSec }, bytes);
    if (!voice)
        return DSERR_OUTOFMEMORY;
    *buffer = new StaticBuffer(output, voice);
    return DS_OK;
}
}

HRESULT DirectSoundCreate(const GUID*, IDirectSound** directSound, IUnknown*)
{
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
