// A wave file, loaded into a voice and mixed.

#include "platform/sdl/sound_output.h"
#include "sound/sound.h"
#include "target.h"

// The output without a device: what the voices make is asked for below.
namespace
{
constexpr size_t FRAMES = 150; ///< more than a fade takes
Mixer* mixer = nullptr;
}

bool SoundOutput::Open()
{
    ::mixer = &mixer;
    return true;
}

SoundOutput::~SoundOutput() {}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const InputFile file;
    static const bool isReady = [] {
        SoundInit(nullptr);
        for (const char* name : { "none", "/" })
            Require(!SoundLoad(SOUND_EAT, name));
        return mixer != nullptr && std::atexit(SoundRelease) == 0;
    }();
    Require(isReady);
    file.Write(data, size);
    if (!SoundLoad(SOUND_EAT, file.Path()))
        return 0;
    int16_t samples[2 * FRAMES];
    for (const bool loop : { false, true }) {
        SoundPlay(SOUND_EAT, loop);
        for (int part = 0; part < 4; ++part)
            mixer->Mix(samples, FRAMES, part != 2);
    }
    SoundStop(SOUND_EAT);
    SoundPlay(SOUND_EAT, false);
    SoundStop(SOUND_EAT);
    mixer->Mix(samples, FRAMES, true);
    return 0;
}
