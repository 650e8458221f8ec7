#pragma once

#include "platform/posix/mixer.h"
#include "platform/sdl/device_watch.h"

#include <SDL.h>

/// The open audio device and its mix. The device object and every buffer hold it; the last one closes it.
/// A device that goes, or whose sound server ends, is opened again as soon as there is one; until then the mix goes on
/// unheard.
class SoundOutput
{
public:
    SoundOutput() = default;
    SoundOutput(const SoundOutput&) = delete;
    SoundOutput& operator=(const SoundOutput&) = delete;
    ~SoundOutput();

    /// False where there is no audio device.
    bool Open();

    static constexpr int RATE = 22050; ///< frames per second

    /// Always at our own rate, so that our own sounds are mixed sample by sample; SDL brings the whole mix to the
    /// device's rate, with a better filter than the voices have.
    Mixer mixer{ RATE };

private:
    static void SDLCALL Fill(void* output, Uint8* bytes, int byteCount);
    SDL_AudioDeviceID OpenDevice();
    void ReopenLostDevice();

    bool initialised = false;
    SDL_AudioDeviceID device = 0; ///< 0 when none is open; the watch's while it runs
    DeviceWatch watch;
};
