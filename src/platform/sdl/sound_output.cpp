#include "platform/sdl/sound_output.h"

#include "platform/sdl/window_state.h"

namespace
{
constexpr Uint16 OUTPUT_FRAMES = 512; ///< mixed at a time: 23 ms
constexpr Uint32 LONGEST_FADE_OUT_MS = 100;
}

SDL_AudioDeviceID SoundOutput::OpenDevice()
{
    SDL_AudioSpec wanted{};
    wanted.freq = RATE;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = 2;
    wanted.samples = OUTPUT_FRAMES;
    wanted.callback = Fill;
    wanted.userdata = this;
    return SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
}

bool SoundOutput::Open()
{
    initialised = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    device = initialised ? OpenDevice() : 0;
    if (device == 0)
        return false;
    SDL_PauseAudioDevice(device, 0);
    watch.Start([this] { ReopenLostDevice(); });
    return true;
}

/// SDL goes on asking for the sound of a device that has gone, so the old one stays open until there is another.
void SoundOutput::ReopenLostDevice()
{
    if (SDL_GetAudioDeviceStatus(device) != SDL_AUDIO_STOPPED)
        return;
    // Libraries write their complaints where there is none.
    const SDL_AudioDeviceID opened = SDL_GetNumAudioDevices(0) > 0 ? OpenDevice() : 0;
    if (opened == 0)
        return;
    SDL_CloseAudioDevice(device);
    device = opened;
    SDL_PauseAudioDevice(device, 0);
}

SoundOutput::~SoundOutput()
{
    watch.Stop();
    if (device != 0) {
        // Buffers released while they played are still fading out. A device that has stalled does not keep us.
        for (Uint32 waited = 0; !mixer.IsSilent() && waited < LONGEST_FADE_OUT_MS; waited += 5)
            SDL_Delay(5);
        SDL_CloseAudioDevice(device);
    }
    if (initialised)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

void SoundOutput::Fill(void* output, Uint8* bytes, int byteCount)
{
    constexpr size_t FRAME_BYTES = 2 * sizeof(int16_t);
    static_cast<SoundOutput*>(output)->mixer.Mix(reinterpret_cast<int16_t*>(bytes),
                                                 static_cast<size_t>(byteCount) / FRAME_BYTES, WindowHasFocus());
}
