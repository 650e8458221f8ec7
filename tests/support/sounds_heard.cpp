#include "support/sounds_heard.h"

#include "sound/sound.h"

SoundsHeard soundsHeard;

// The linker leads the game's calls here (CMakeLists.txt).
extern "C" bool __real__Z9SoundPlayib(int id, bool loop);
extern "C" bool __real__Z9SoundStopi(int id);

extern "C" bool __wrap__Z9SoundPlayib(int id, bool loop)
{
    if (SoundGetMute() == 0) {
        soundsHeard.calls.Add(static_cast<uint64_t>(id * 4 + 2 + loop));
        ++soundsHeard.plays.at(static_cast<size_t>(id));
    }
    return __real__Z9SoundPlayib(id, loop);
}

extern "C" bool __wrap__Z9SoundStopi(int id)
{
    if (SoundGetMute() == 0)
        soundsHeard.calls.Add(static_cast<uint64_t>(id * 4));
    return __real__Z9SoundStopi(id);
}
