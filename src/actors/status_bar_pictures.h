#pragma once

#include "game/geometry.h"
#include "gfx/image.h"
#include "menu/help_page.h"
#include "res/picture_table.h"

/// Index into the status bar's `images`.
enum StatusImage : int {
    IMAGE_STRIP = 0,
    IMAGE_STREAK = 1, ///< the first of five, by berry colour
    IMAGE_HEART = 6,
    IMAGE_PROGRESS = 7,
    IMAGE_PAUSED = 8,
    IMAGE_CONFIRM = 9,
    IMAGE_LEVEL_CLEARED = 10,
    IMAGE_NEXT_LEVEL = 11,
    IMAGE_HELP = 12, ///< the first page
    IMAGE_GAME_OVER = IMAGE_HELP + HELP_PAGES,
    STATUS_IMAGES,
};

constexpr int StreakImage(int colour)
{
    return IMAGE_STREAK + colour;
}

constexpr int STATUS_SET = 0; ///< the status bar's only set of images

constexpr PictureSize STREAK_PICTURE = { 11, 11 };
constexpr PictureSize MESSAGE_PICTURE = { 160, 90 };

/// In the order of loading.
constexpr PictureRow statusPictures[] = {
    { STATUS_SET, IMAGE_STRIP, "LeftPanel.bmp", { POND_LEFT, SCREEN_HEIGHT }, BlitCopy },
    { STATUS_SET, StreakImage(RED), "beanred.bmp", STREAK_PICTURE, BlitColorKey },
    { STATUS_SET, StreakImage(GREEN), "beangreen.bmp", STREAK_PICTURE, BlitColorKey },
    { STATUS_SET, StreakImage(BLUE), "beanblue.bmp", STREAK_PICTURE, BlitColorKey },
    { STATUS_SET, StreakImage(ORANGE), "beanorange.bmp", STREAK_PICTURE, BlitColorKey },
    { STATUS_SET, StreakImage(PURPLE), "beanpurple.bmp", STREAK_PICTURE, BlitColorKey },
    { STATUS_SET, IMAGE_HEART, "heart.bmp", { 14, 12 }, BlitColorKey },
    { STATUS_SET, IMAGE_PROGRESS, "Progress.jpg", { 19, 313 }, BlitCopy },
    { STATUS_SET, IMAGE_PAUSED, "MessagePaused.jpg", MESSAGE_PICTURE, BlitCopy },
    { STATUS_SET, IMAGE_CONFIRM, "MessageConfirm.jpg", MESSAGE_PICTURE, BlitCopy },
    { STATUS_SET, IMAGE_LEVEL_CLEARED, "MessageLevelCleared.jpg", MESSAGE_PICTURE, BlitCopy },
    { STATUS_SET, IMAGE_NEXT_LEVEL, "MessageNextLevel.jpg", { 160, 110 }, BlitCopy },
    { STATUS_SET, IMAGE_HELP, "Help%d.jpg", HELP_PICTURE, BlitCopy, nullptr, HELP_PAGES },
    { STATUS_SET, IMAGE_GAME_OVER, "MessageGameOver.jpg", MESSAGE_PICTURE, BlitCopy },
};
