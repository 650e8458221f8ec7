#pragma once

#include "platform/directsound.h"
#include "platform/types.h"

#include <algorithm>
#include <cstdint>
#include <span>

/// Sound ids. One id is one voice: a sound that both players may need at once has a row for each.
enum SoundId : int {
    SOUND_NONE = -1,
    SOUND_MENU_HOVER = 0,
    SOUND_MENU_CLICK = 1,
    SOUND_MUSIC = 2,
    SOUND_MENU_ENV_FIRST = 3, ///< five of them
    SOUND_MENU_ENV_LAST = 7,
    SOUND_POND_FIRST = 9,
    SOUND_DROP = 9,
    SOUND_EAT = 10,
    SOUND_RAIN_1 = 11,
    SOUND_THUNDER_NEAR = 12,
    SOUND_THUNDER_FAR = 13,
    SOUND_SPEED_UP = 14,
    SOUND_SPEED_DOWN = 15,
    SOUND_BEAT_1 = 16,
    SOUND_FREEZE = 17,
    SOUND_FADE = 18,
    SOUND_LASER = 19,
    SOUND_WARP = 20,
    SOUND_DIE = 21,
    SOUND_POP = 22,
    SOUND_LIFE_UP = 23,
    SOUND_ENV_FIRST = 24, ///< five of them
    SOUND_ENV_LAST = 28,
    SOUND_RAIN_2 = 29,
    SOUND_BEAT_2 = 30,
    SOUND_POND_LAST = 30,
};

/// A row of a table of sounds to load.
struct SoundFile {
    int id;
    const char* path; ///< relative to the program's folder
};
/// So that no id is given twice.
constexpr bool IdsAscend(std::span<const SoundFile> sounds)
{
    const auto isOutOfOrder = [](const SoundFile& a, const SoundFile& b) { return a.id >= b.id; };
    return std::adjacent_find(sounds.begin(), sounds.end(), isOutOfOrder) == sounds.end();
}

/// Sets up the sound device for that window. Without one the program runs on, silent.
void SoundInit(HWND window);
/// Releases every sound and the device.
void SoundRelease();
/// Makes or remakes the id's buffer, empty, of that format and size in bytes.
bool SoundCreate(int id, const WAVEFORMATEX* format, uint32_t byteCount);
/// Reads a wave file whole into the id's buffer. Failure means that the id stays silent.
bool SoundLoad(int id, const char* path);
/// Starts the id's sound, once or in a loop; one that plays goes on from where it is. While muted: true, no effect.
bool SoundPlay(int id, bool loop);
/// Stops it, keeping its position. While muted: true, no effect.
bool SoundStop(int id);
/// Muting does not stop what is already playing.
void SoundSetMute(int muted);
int SoundGetMute();
