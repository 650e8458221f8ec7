#include "actors/snake.h"
#include "app/log.h"

namespace
{
constexpr std::span<const PictureRow> allPictures = snakePictures;
constexpr size_t BODIES = 2;
}

std::array<std::span<CImage>, SNAKE_IMAGE_SETS> CSnake::ImageSets()
{
    std::array<std::span<CImage>, SNAKE_IMAGE_SETS> sets;
    sets[SNAKE_BODY] = { &bodyImage, 1 };
    sets[SNAKE_EYES] = eyeImages;
    sets[SNAKE_BUMP_EYES] = bumpEyeImages;
    sets[SNAKE_ARROWS] = arrowImages;
    sets[SNAKE_SHADOW] = { &shadowImage, 1 };
    return sets;
}

bool CSnake::SnakeLoadImage()
{
    const size_t body = player == 1 ? 0 : 1;
    if (!LoadPictures(ImageSets(), allPictures.subspan(body, 1)) ||
        !LoadPictures(ImageSets(), allPictures.subspan(BODIES)))
        return false;
    WriteLog("CSnake::SnakeLoadImage");
    return true;
}

void CSnake::SnakeFreeImage()
{
    FreeImages(ImageSets());
    WriteLog("CSnake::SnakeFreeImage");
}
