#include "actors/snake.h"
#include "app/log.h"

#include <span>

namespace
{
constexpr std::span<const PictureRow> allPictures = snakePictures;
constexpr size_t BODIES = 2;
}

bool CSnake::SnakeLoadImage()
{
    if (!AllocateImages(eyeImages, EYE_IMAGES) || !AllocateImages(bumpEyeImages, BUMP_EYE_IMAGES) ||
        !AllocateImages(arrowImages, ARROW_IMAGES))
        return false;
    std::span<CImage> sets[SNAKE_IMAGE_SETS];
    sets[SNAKE_BODY] = { &bodyImage, 1 };
    sets[SNAKE_EYES] = { eyeImages.get(), EYE_IMAGES };
    sets[SNAKE_BUMP_EYES] = { bumpEyeImages.get(), BUMP_EYE_IMAGES };
    sets[SNAKE_ARROWS] = { arrowImages.get(), ARROW_IMAGES };
    sets[SNAKE_SHADOW] = { &shadowImage, 1 };
    const size_t body = player == 1 ? 0 : 1;
    if (!LoadPictures(sets, allPictures.subspan(body, 1)) || !LoadPictures(sets, allPictures.subspan(BODIES)))
        return false;
    WriteLog("CSnake::SnakeLoadImage");
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
