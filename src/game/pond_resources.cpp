#include "app/loading_steps.h"
#include "app/log.h"
#include "game/pond.h"
#include "sound/sound.h"

#include <iterator>
#include <span>

namespace
{
// One id is one voice: what both players may need at once is there twice.
constexpr SoundFile pondSounds[] = {
    { SOUND_DROP, "Wav\\drop.wav" },
    { SOUND_EAT, "Wav\\eat.wav" },
    { SOUND_RAIN_1, "Wav\\rainloop.wav" },
    { SOUND_THUNDER_NEAR, "Wav\\thunder1.wav" },
    { SOUND_THUNDER_FAR, "Wav\\thunder2.wav" },
    { SOUND_SPEED_UP, "Wav\\speedup.wav" },
    { SOUND_SPEED_DOWN, "Wav\\speedown.wav" },
    { SOUND_BEAT_1, "Wav\\beat.wav" },
    { SOUND_FREEZE, "Wav\\freeze.wav" },
    { SOUND_FADE, "Wav\\fade.wav" },
    { SOUND_LASER, "Wav\\laser.wav" },
    { SOUND_WARP, "Wav\\warp.wav" },
    { SOUND_DIE, "Wav\\die.wav" },
    { SOUND_POP, "Wav\\popo.wav" },
    { SOUND_LIFE_UP, "Wav\\lifeup.wav" },
    { SOUND_ENV_FIRST, "Wav\\env1.wav" },
    { SOUND_ENV_FIRST + 1, "Wav\\env8.wav" },
    { SOUND_ENV_FIRST + 2, "Wav\\env11.wav" },
    { SOUND_ENV_FIRST + 3, "Wav\\env12.wav" },
    { SOUND_ENV_LAST, "Wav\\env13.wav" },
    { SOUND_RAIN_2, "Wav\\rainloop.wav" },
    { SOUND_BEAT_2, "Wav\\beat.wav" },
};
static_assert(IdsAscend(pondSounds) && std::size(pondSounds) == SOUND_POND_LAST - SOUND_POND_FIRST + 1);

constexpr std::span<const PictureRow> allPictures = pondPictures;
constexpr size_t BACKGROUND_PICTURES = 1;
}

bool CPond::DataLoad(bool& done)
{
    static constexpr LoadingStep<CPond> steps[] = {
        { &CPond::LoadSounds, "CPond::DataLoad 0" },
        { &CPond::LoadBackgrounds, "CPond::DataLoad 1" },
        { &CPond::LoadImages, "CPond::DataLoad 2" },
    };
    return DoLoadingStep(*this, steps, scenery.loadStage, done);
}

bool CPond::LoadSounds()
{
    for (const SoundFile& sound : pondSounds)
        SoundLoad(sound.id, sound.path);
    return true; // a missing sound is silence, not a failed start
}

bool CPond::LoadBackgrounds()
{
    return LoadPictures(ImageSets(), allPictures.first(BACKGROUND_PICTURES)) && MakeNightBackground();
}

bool CPond::LoadImages()
{
    return LoadPictures(ImageSets(), allPictures.subspan(BACKGROUND_PICTURES));
}

std::array<std::span<CImage>, POND_IMAGE_SETS> CPond::ImageSets()
{
    std::array<std::span<CImage>, POND_IMAGE_SETS> sets;
    sets[POND_DAY] = { &dayBackground, 1 };
    sets[POND_OBJECTS] = objectImages;
    sets[POND_SHADOW] = { &shadowImage, 1 };
    sets[POND_LIGHT] = { &lightImage, 1 };
    sets[POND_LASERS] = laserImages;
    sets[POND_POPUPS] = popupImages;
    sets[POND_GROWTH] = growthImages;
    sets[POND_MOONS] = moonImages;
    return sets;
}

void CPond::UnDataLoad()
{
    FreeImages(ImageSets());
    nightBackground.Free();
    WriteLog("CPond::UnDataLoad");
}
