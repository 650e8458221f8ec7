#include "support/sounds_heard.h"

#include "sound/sound.h"

SoundsHeard soundsHeard;

// The linker leads the game's calls here (CMakeLists.txt).
extern "C" {
bool RealSoundPlay(int id, bool loop) asm("__real__Z9SoundPlayib");
bool RealSoundStop(int id) asm("__real__Z9SoundStopi");
bool WrapSoundPlay(int id, bool loop) asm("__wrap__Z9SoundPlayib");
bool WrapSoundStop(int id) asm("__wrap__Z9SoundStopi");
}

bool WrapSoundPlay(int id, bool loop)
{
    if (SoundGetMute() == 0) {
        soundsHeard.calls.Add(static_cast<uint64_t>(id * 4 + 2 + loop));
        ++soundsHeard.plays.at(static_cast<size_t>(id));
    }
    return RealSoundPlay(id, loop);
}

bool WrapSoundStop(int id)
{
    if (SoundGetMute() == 0)
        soundsHeard.calls.Add(static_cast<uint64_t>(id * 4));
    return RealSoundStop(id);
}
