#include "app/log.h"
#include "game/pond.h"
#include "gfx/blit.h"
#include "res/image_loader.h"
#include "sound/sound.h"

#include <algorithm>
#include <cstdio>
#include <span>
#include <string>

namespace
{
struct PictureFile {
    int index; ///< in its image array
    const char* path;
};

/// Pictures of berries by colour, numbered by frame of growth.
struct GrowthFile {
    int colour;
    const char* pattern;
};

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

constexpr PictureFile objectFiles[] = {
    { RED, "Dat\\Image/bean_red.jpg" },       { GREEN, "Dat\\Image/bean_green.jpg" },
    { BLUE, "Dat\\Image/bean_blue.jpg" },     { ORANGE, "Dat\\Image/bean_orange.jpg" },
    { PURPLE, "Dat\\Image/bean_purple.jpg" }, { GOLDEN, "Dat\\Image/bean_golden.jpg" },
    { STONE_IMAGE, "Dat\\Image/stone.jpg" },
};

constexpr PictureFile popupFiles[] = {
    { POPUP_5, "Dat\\Image/add5.jpg" },   { POPUP_10, "Dat\\Image/add10.jpg" },
    { POPUP_15, "Dat\\Image/add15.jpg" }, { POPUP_30, "Dat\\Image/add30.jpg" },
    { POPUP_35, "Dat\\Image/add35.jpg" }, { POPUP_40, "Dat\\Image/add40.jpg" },
    { POPUP_45, "Dat\\Image/add45.jpg" }, { POPUP_LIFE_UP, "Dat\\Image/lifeup.jpg" },
};

constexpr GrowthFile growthFiles[] = {
    { RED, "Dat\\Image/bean_red%d.jpg" },       { GREEN, "Dat\\Image/bean_green%d.jpg" },
    { BLUE, "Dat\\Image/bean_blue%d.jpg" },     { ORANGE, "Dat\\Image/bean_orange%d.jpg" },
    { PURPLE, "Dat\\Image/bean_purple%d.jpg" },
};

std::string NumberedPath(const char* pattern, int number)
{
    char path[64];
    std::snprintf(path, sizeof path, pattern, number);
    return path;
}

/// A JPEG picture, drawn that way.
bool LoadWithBlit(CImage& image, const char* path, BlitRoutine blit)
{
    if (!LoadJpegFile(image, path))
        return false;
    image.blit = blit;
    return true;
}

/// Gives each picture the mask as its alpha plane. False when there is no memory for one.
bool ApplyMask(std::span<CImage> images, const CImage& mask, BlitRoutine blit)
{
    for (CImage& image : images) {
        image.CopyAlpha(mask);
        if (!image.alpha)
            return false;
        image.blit = blit;
    }
    return true;
}

bool LoadPictureFiles(CImage* images, std::span<const PictureFile> files)
{
    const auto load = [images](const PictureFile& file) { return LoadJpegFile(images[file.index], file.path); };
    return std::ranges::all_of(files, load);
}
}

bool CPond::DataLoad(bool& done)
{
    switch (scenery.loadStage) {
    case 0:
        for (const SoundFile& sound : pondSounds)
            SoundLoad(sound.id, sound.path); // a missing sound is silence, not a failed start
        WriteLog("CPond::DataLoad 0");
        break;
    case 1:
        if (!LoadBackgrounds())
            return false;
        WriteLog("CPond::DataLoad 1");
        break;
    case 2:
        if (!LoadPictures())
            return false;
        done = true;
        WriteLog("CPond::DataLoad 2");
        break;
    default:
        done = true;
    }
    ++scenery.loadStage;
    return true;
}

bool CPond::LoadBackgrounds()
{
    return LoadWithBlit(dayBackground, "Dat\\Image/bg0.jpg", BlitCopy) && MakeNightBackground();
}

bool CPond::LoadPictures()
{
    return LoadObjectImages() && LoadWithBlit(shadowImage, "Dat\\Image/shadow.jpg", BlitSub) &&
           LoadWithBlit(lightImage, "Dat\\Image/light.jpg", BlitAdd) && LoadLaserImages() && LoadPopupImages() &&
           LoadGrowthImages() && LoadMoonImages();
}

bool CPond::LoadObjectImages()
{
    objectImages = std::make_unique<CImage[]>(OBJECT_IMAGES);
    CImage mask;
    return LoadPictureFiles(objectImages.get(), objectFiles) && LoadMaskFile(mask, "Dat\\Image/mask.bmp") &&
           ApplyMask({ objectImages.get(), OBJECT_IMAGES }, mask, BlitAlpha);
}

bool CPond::LoadLaserImages()
{
    laserImages = std::make_unique<CImage[]>(LASER_IMAGES);
    for (int i = 0; i < LASER_IMAGES; ++i) {
        CImage& image = laserImages[i];
        CImage mask;
        if (!LoadJpegFile(image, NumberedPath("Dat\\Image/light%d.jpg", i + 1).c_str()) ||
            !LoadMaskFile(mask, NumberedPath("Dat\\Image/light%d_.bmp", i + 1).c_str()) ||
            !ApplyMask({ &image, 1 }, mask, BlitAlpha))
            return false;
    }
    return true;
}

bool CPond::LoadPopupImages()
{
    popupImages = std::make_unique<CImage[]>(POPUP_IMAGES);
    CImage mask;
    return LoadMaskFile(mask, "Dat\\Image/add_.bmp") && LoadPictureFiles(popupImages.get(), popupFiles) &&
           ApplyMask({ popupImages.get(), POPUP_IMAGES }, mask, BlitAlphaOpacity);
}

bool CPond::LoadGrowthImages()
{
    growthImages = std::make_unique<CImage[]>(GROWTH_IMAGES);
    for (int frame = 1; frame <= GROWTH_FRAMES; ++frame)
        if (!LoadGrowthFrame(frame))
            return false;
    return true;
}

/// One frame of the falling berries of every colour, which share a mask.
bool CPond::LoadGrowthFrame(int frame)
{
    const auto image = [this, frame](const GrowthFile& file) -> CImage& {
        return growthImages[file.colour * GROWTH_FRAMES + frame - 1];
    };
    for (const GrowthFile& file : growthFiles)
        if (!LoadJpegFile(image(file), NumberedPath(file.pattern, frame).c_str()))
            return false;
    CImage mask;
    if (!LoadMaskFile(mask, NumberedPath("Dat\\Image/mask%d.bmp", frame).c_str()))
        return false;
    return std::ranges::all_of(growthFiles, [&](const GrowthFile& file) {
        return ApplyMask({ &image(file), 1 }, mask, BlitAlphaOpacity);
    });
}

bool CPond::LoadMoonImages()
{
    CImage masks[2];
    return LoadJpegFile(moonImages[0], "Dat\\Image/Moon1.jpg") && LoadJpegFile(moonImages[1], "Dat\\Image/Moon2.jpg") &&
           LoadMaskFile(masks[0], "Dat\\Image/Moon1_.bmp") && LoadMaskFile(masks[1], "Dat\\Image/Moon2_.bmp") &&
           ApplyMask({ &moonImages[0], 1 }, masks[0], BlitAlphaOpacity) &&
           ApplyMask({ &moonImages[1], 1 }, masks[1], BlitAlphaOpacity);
}

void CPond::UnDataLoad()
{
    for (CImage* image :
         { &dayBackground, &nightBackground, &shadowImage, &lightImage, &moonImages[0], &moonImages[1] })
        image->Free();
    objectImages.reset();
    laserImages.reset();
    popupImages.reset();
    growthImages.reset();
    WriteLog("CPond::UnDataLoad");
}
