#include "actors/snake.h"
#include "app/log.h"
#include "gfx/blit.h"
#include "res/image_loader.h"

#include <cstddef>
#include <memory>

namespace
{
constexpr const char* arrowFiles[ARROW_IMAGES] = {
    "Dat\\Image/ArrowUp.bmp",
    "Dat\\Image/ArrowDown.bmp",
    "Dat\\Image/ArrowLeft.bmp",
    "Dat\\Image/ArrowRight.bmp",
};

constexpr NumberedFiles eyeFiles{ "Dat\\Image/snakeeye%02d.jpg", "Dat\\Image/snakeeye%02d_.bmp" };
constexpr NumberedFiles bumpEyeFiles{ "Dat\\Image/bumpeye%d.jpg", "Dat\\Image/bumpeye%d_.bmp" };

/// An array of heads, each with its mask.
bool LoadHeads(std::unique_ptr<CImage[]>& images, int count, const NumberedFiles& files)
{
    return AllocateImages(images, count) &&
           LoadMaskedFiles({ images.get(), static_cast<size_t>(count) }, files, BlitAlpha);
}
}

bool CSnake::SnakeLoadImage()
{
    const char* bodyFile = player == 1 ? "Dat\\Image/snakebody.jpg" : "Dat\\Image/snakebody2nd.jpg";
    if (!LoadJpegFile(bodyImage, bodyFile))
        return false;
    bodyImage.blit = BlitAdd;

    if (!LoadHeads(eyeImages, EYE_IMAGES, eyeFiles) || !LoadHeads(bumpEyeImages, BUMP_EYE_IMAGES, bumpEyeFiles) ||
        !LoadArrows() || !LoadJpegFile(shadowImage, "Dat\\Image/shadow.jpg"))
        return false;
    shadowImage.blit = BlitSub;
    WriteLog("CSnake::SnakeLoadImage");
    return true;
}

bool CSnake::LoadArrows()
{
    if (!AllocateImages(arrowImages, ARROW_IMAGES))
        return false;
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
