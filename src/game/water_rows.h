#pragma once

#include <cstdint>

/// The picture that is displaced, as one run of pixels whose rows are as long as the field's.
struct WaterSource {
    const uint16_t* pixels;
    int width;  ///< of a row
    int height; ///< in rows
};

/// The water's rules for a row of heights. They read the row of `current` and the rows before and after it as one run
/// of samples: beyond a row's ends lie its neighbours' ends. `left` is the height left of the first sample, which for
/// the field's first row is not what the run has there. Shifts are 0 to 15.
struct WaterKernels {
    /// Steps the `width` samples of one row, a multiple of four: `previous` becomes the next height.
    void (*stepRow)(const int16_t* current, int16_t* previous, int width, int16_t left, int dampingShift);

    /// Displaces `count` pixels of one row, a multiple of four, from field sample (x, y) on; `current` points there,
    /// `target` at its pixel. The target has the picture's plain row, which stays where the water is flat or the
    /// displaced pixel is off the picture.
    void (*refractRow)(const int16_t* current, const WaterSource& source, int x, int y, int count, int16_t left,
                       int refractionShift, uint16_t* target);
};

/// The kernels for the best instruction set of this machine; all give the same heights and pixels.
const WaterKernels& BestWaterKernels();
