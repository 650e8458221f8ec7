#pragma once

#include "game/geometry.h"
#include "gfx/image.h"
#include "res/picture_table.h"

constexpr int EYE_IMAGES = 24;
constexpr int BUMP_EYE_IMAGES = 4;
constexpr int ARROW_IMAGES = 4;

/// A snake's sets of images.
enum SnakeImages : int {
    SNAKE_BODY,
    SNAKE_EYES,
    SNAKE_BUMP_EYES,
    SNAKE_ARROWS,
    SNAKE_SHADOW,
    SNAKE_IMAGE_SETS,
};

constexpr PictureSize SEGMENT_PICTURE = { CELL_SIZE, CELL_SIZE };

/// In the order of loading; of the bodies, by player, each snake loads one.
constexpr PictureRow snakePictures[] = {
    { SNAKE_BODY, 0, "snakebody.jpg", SEGMENT_PICTURE, BlitAdd },
    { SNAKE_BODY, 0, "snakebody2nd.jpg", SEGMENT_PICTURE, BlitAdd },
    { SNAKE_EYES, 0, "snakeeye%02d.jpg", SEGMENT_PICTURE, BlitAlpha, "snakeeye%02d_.bmp", EYE_IMAGES },
    { SNAKE_BUMP_EYES, 0, "bumpeye%d.jpg", { 24, 24 }, BlitAlpha, "bumpeye%d_.bmp", BUMP_EYE_IMAGES },
    { SNAKE_ARROWS, 0, "ArrowUp.bmp", SEGMENT_PICTURE, BlitColorKey },
    { SNAKE_ARROWS, 1, "ArrowDown.bmp", SEGMENT_PICTURE, BlitColorKey },
    { SNAKE_ARROWS, 2, "ArrowLeft.bmp", SEGMENT_PICTURE, BlitColorKey },
    { SNAKE_ARROWS, 3, "ArrowRight.bmp", SEGMENT_PICTURE, BlitColorKey },
    { SNAKE_SHADOW, 0, "shadow.jpg", SEGMENT_PICTURE, BlitSub },
};
