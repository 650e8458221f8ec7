#include "actors/snake.h"
#include "app/log.h"
#include "gfx/blit.h"
#include "res/image_loader.h"

#include <cstdio>

namespace
{
constexpr const char* arrowFiles[ARROW_IMAGES] = {
    "Dat\\Image/ArrowUp.bmp",
    "Dat\\Image/ArrowDown.bmp",
    "Dat\\Image/ArrowLeft.bmp",
    "Dat\\Image/ArrowRight.bmp",
};

/// Pictures that are numbered from 1 on, each with its own mask; the patterns take the number.
struct NumberedFiles {
    const char* picture;
    const char* mask;
};
constexpr NumberedFiles eyeFiles{ "Dat\\Image/snakeeye%02d.jpg", "Dat\\Image/snakeeye%02d_.bmp" };
constexpr NumberedFiles bumpEyeFiles{ "Dat\\Image/bumpeye%d.jpg", "Dat\\Image/bumpeye%d_.bmp" };

bool LoadMaskedImage(CImage& image, const NumberedFiles& files, int number)
{
    char path[64];
    std::snprintf(path, sizeof path, files.picture, number);
    if (!LoadJpegFile(image, path))
        return false;
    CImage mask;
    std::snprintf(path, sizeof path, files.mask, number);
    if (!LoadMaskFile(mask, path))
        return false;
    image.CopyAlpha(mask);
    image.blit = BlitAlpha;
    return true;
}

bool LoadMaskedImages(CImage* images, int count, const NumberedFiles& files)
{
    for (int i = 0; i < count; ++i) {
        if (!LoadMaskedImage(images[i], files, i + 1))
            return false;
    }
    return true;
}
}

bool CSnake::SnakeLoadImage()
{
    const char* bodyFile = player == 1 ? "Dat\\Image/snakebody.jpg" : "Dat\\Image/snakebody2nd.jpg";
    if (!LoadJpegFile(bodyImage, bodyFile))
        return false;
    bodyImage.blit = BlitAdd;

    eyeImages = std::make_unique<CImage[]>(EYE_IMAGES);
    if (!LoadMaskedImages(eyeImages.get(), EYE_IMAGES, eyeFiles))
        return false;
    bumpEyeImages = std::make_unique<CImage[]>(BUMP_EYE_IMAGES);
    if (!LoadMaskedImages(bumpEyeImages.get(), BUMP_EYE_IMAGES, bumpEyeFiles))
        return false;
    if (!LoadArrows())
        return false;

    if (!LoadJpegFile(shadowImage, "Dat\\Image/shadow.jpg"))
        return false;
    shadowImage.blit = BlitSub;
    WriteLog("CSnake::SnakeLoadImage");
    return true;
}

bool CSnake::LoadArrows()
{
    arrowImages = std::make_unique<CImage[]>(ARROW_IMAGES);
    for (int i = 0; i < ARROW_IMAGES; ++i) {
        if (!LoadBmpFile(arrowImages[i], arrowFiles[i]))
            return false;
        arrowImages[i].blit = BlitColorKey;
    }
    return true;
}

void CSnake::SnakeFreeImage()
{
    bodyImage.Free();
    shadowImage.Free();
    eyeImages.reset();
    bumpEyeImages.reset();
    arrowImages.reset();
    WriteLog("CSnake::SnakeFreeImage");
}
