#include "support/sound_calls.h"

#include "sound/sound.h"

#include <utility>

namespace
{
std::vector<SoundCall> calls;

void Record(const SoundCall& call)
{
    if (SoundGetMute() == 0)
        calls.push_back(call);
}
}

// The linker leads the game's calls here (CMakeLists.txt).
extern "C" {
bool RealSoundPlay(int id, bool loop) asm("__real__Z9SoundPlayib");
bool RealSoundStop(int id) asm("__real__Z9SoundStopi");
bool WrapSoundPlay(int id, bool loop) asm("__wrap__Z9SoundPlayib");
bool WrapSoundStop(int id) asm("__wrap__Z9SoundStopi");
}

bool WrapSoundPlay(int id, bool loop)
{
    Record({ id, true, loop });
    return RealSoundPlay(id, loop);
}

bool WrapSoundStop(int id)
{
    Record({ id, false, false });
    return RealSoundStop(id);
}

std::vector<SoundCall> TakeSoundCalls()
{
    return std::exchange(calls, {});
}
