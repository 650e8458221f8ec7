#pragma once

#include <cstdint>

// The water's rules for one row of heights. Heights are signed 16-bit values that saturate.

/// Steps the `width` samples of one row, a multiple of four: `previous` becomes the next height. Reads the row of
/// `current` and the rows before and after it as one run of samples: beyond a row's ends lie its neighbours' ends.
/// `left` is the height left of the first sample. Shifts are 0 to 15.
void StepWaterRow(const int16_t* current, int16_t* previous, int width, int16_t left, int dampingShift);

/// The picture that is displaced, as one run of pixels whose rows are as long as the field's.
struct WaterSource {
    const uint16_t* pixels;
    int width;  ///< of a row
    int height; ///< in rows
};

/// Displaces `count` pixels of one row, from field sample (x, y) on. `current` are the row's heights as above, from
/// that sample on; `target` its pixels, which stay where the water is flat or the displaced pixel is off the picture.
void RefractWaterRow(const int16_t* current, const WaterSource& source, int x, int y, int count, int16_t left,
                     int refractionShift, uint16_t* target);
