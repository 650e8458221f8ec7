#pragma once

#include "game/geometry.h"
#include "game/pond_records.h"
#include "gfx/image.h"
#include "res/picture_table.h"

constexpr int OBJECT_IMAGES = 7; ///< six berries by colour, then the stone
constexpr int STONE_IMAGE = 6;
constexpr int LASER_IMAGES = 8;
constexpr int LASER_FLIGHT_IMAGES = 4; ///< then the burst
constexpr int LASER_BURST_IMAGES = LASER_IMAGES - LASER_FLIGHT_IMAGES;
constexpr int POPUP_IMAGES = 8;
constexpr int GROWTH_FRAMES = 14; ///< falling-berry images per colour
constexpr int GROWTH_IMAGES = GROWTH_FRAMES * ORDINARY_COLOURS;
constexpr int MOON_IMAGES = 2;

/// The pond's sets of images.
enum PondImages : int {
    POND_DAY,
    POND_OBJECTS,
    POND_SHADOW,
    POND_LIGHT,
    POND_LASERS,
    POND_POPUPS,
    POND_GROWTH,
    POND_MOONS,
    POND_IMAGE_SETS,
};

constexpr PictureSize CELL_PICTURE = { CELL_SIZE, CELL_SIZE };
constexpr PictureSize POPUP_PICTURE = { 32, 16 };

/// A falling berry comes down to the size of a ripe one.
constexpr int growthSides[GROWTH_FRAMES] = { 36, 34, 32, 32, 30, 28, 26, 24, 24, 22, 20, 20, 18, 16 };
constexpr int laserSides[LASER_IMAGES] = { 30, 30, 30, 30, 56, 56, 56, 56 };

constexpr PictureRow GrowthRow(int colour, const char* file)
{
    return {
        POND_GROWTH, colour * GROWTH_FRAMES, file, {}, BlitAlphaOpacity, "mask%d.bmp", GROWTH_FRAMES, growthSides
    };
}

/// In the order of loading; the day comes first, for the night is made from it.
constexpr PictureRow pondPictures[] = {
    { POND_DAY, 0, "bg0.jpg", { POND_SIZE, POND_SIZE }, BlitCopy },
    { POND_OBJECTS, RED, "bean_red.jpg", CELL_PICTURE, BlitAlpha, "mask.bmp" },
    { POND_OBJECTS, GREEN, "bean_green.jpg", CELL_PICTURE, BlitAlpha, "mask.bmp" },
    { POND_OBJECTS, BLUE, "bean_blue.jpg", CELL_PICTURE, BlitAlpha, "mask.bmp" },
    { POND_OBJECTS, ORANGE, "bean_orange.jpg", CELL_PICTURE, BlitAlpha, "mask.bmp" },
    { POND_OBJECTS, PURPLE, "bean_purple.jpg", CELL_PICTURE, BlitAlpha, "mask.bmp" },
    { POND_OBJECTS, GOLDEN, "bean_golden.jpg", CELL_PICTURE, BlitAlpha, "mask.bmp" },
    { POND_OBJECTS, STONE_IMAGE, "stone.jpg", CELL_PICTURE, BlitAlpha, "mask.bmp" },
    { POND_SHADOW, 0, "shadow.jpg", CELL_PICTURE, BlitSub },
    { POND_LIGHT, 0, "light.jpg", { 160, 160 }, BlitAdd },
    { POND_LASERS, 0, "light%d.jpg", {}, BlitAlpha, "light%d_.bmp", LASER_IMAGES, laserSides },
    { POND_POPUPS, POPUP_5, "add5.jpg", POPUP_PICTURE, BlitAlphaOpacity, "add_.bmp" },
    { POND_POPUPS, POPUP_10, "add10.jpg", POPUP_PICTURE, BlitAlphaOpacity, "add_.bmp" },
    { POND_POPUPS, POPUP_15, "add15.jpg", POPUP_PICTURE, BlitAlphaOpacity, "add_.bmp" },
    { POND_POPUPS, POPUP_30, "add30.jpg", POPUP_PICTURE, BlitAlphaOpacity, "add_.bmp" },
    { POND_POPUPS, POPUP_35, "add35.jpg", POPUP_PICTURE, BlitAlphaOpacity, "add_.bmp" },
    { POND_POPUPS, POPUP_40, "add40.jpg", POPUP_PICTURE, BlitAlphaOpacity, "add_.bmp" },
    { POND_POPUPS, POPUP_45, "add45.jpg", POPUP_PICTURE, BlitAlphaOpacity, "add_.bmp" },
    { POND_POPUPS, POPUP_LIFE_UP, "lifeup.jpg", POPUP_PICTURE, BlitAlphaOpacity, "add_.bmp" },
    GrowthRow(RED, "bean_red%d.jpg"),
    GrowthRow(GREEN, "bean_green%d.jpg"),
    GrowthRow(BLUE, "bean_blue%d.jpg"),
    GrowthRow(ORANGE, "bean_orange%d.jpg"),
    GrowthRow(PURPLE, "bean_purple%d.jpg"),
    { POND_MOONS, 0, "Moon%d.jpg", { 130, 130 }, BlitAlphaOpacity, "Moon%d_.bmp", MOON_IMAGES },
};
