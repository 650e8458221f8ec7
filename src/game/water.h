#pragma once

#include "gfx/image.h"

#include <cstdint>

/// The water surface: two buffers of signed 16-bit heights, 0 calm. It shows as displacement of what lies below.
struct WaterState {
    int16_t* current;  ///< heights of this step, borrowed from an image
    int16_t* previous; ///< heights of the step before; the next step overwrites them
    int32_t fieldWidth;
    int32_t fieldHeight;
    int32_t rowBytes;        ///< 2 * fieldWidth
    int32_t fieldBytes;      ///< one buffer
    int32_t dampingShift;    ///< a step loses 1 / 2^shift of a height
    int32_t refractionShift; ///< displacement is the slope / 2^shift
};
extern WaterState water;

/// Calms the water and uses the two images' pixel planes, equally large and with rows of 2 * width bytes, as buffers.
void WaterInit(CImage& first, CImage& second, int dampingShift, int refractionShift);

/// Sets the height of a disc to `depth`; x, y, radius in pond pixels. Points off the field and in its first and last
/// row are left out.
void DisturbWater(int x, int y, int radius, int depth);

/// A splash in the middle of a cell.
struct CellSplash {
    int radius;
    int depth;
};
constexpr CellSplash BERRY_SPLASH{ 8, 170 }; ///< of a berry that lands or sinks
constexpr CellSplash LIGHT_SPLASH{ 4, 102 }; ///< of a snake's segment or of what a ring strikes
/// (x, y) is the cell's top-left corner.
void SplashCell(int x, int y, const CellSplash& splash);

/// Shows the part (x0, y0, width, height) of the picture `source`, whose rows are as long as the field's, displaced by
/// the water's slopes, at (targetX, targetY) of `target`; then advances the water one step. Width: a multiple of 4.
void WaterFrame(const uint16_t* source, int x0, int y0, int width, int height, uint16_t* target, int targetX,
                int targetY, int targetPitch);
