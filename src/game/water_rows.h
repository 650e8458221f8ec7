#pragma once

#include <cstddef>
#include <cstdint>

/// Samples of rows that follow each other. Heights are read as one run: beyond a row's ends lie its neighbours' ends.
struct WaterRows {
    const int16_t* current; ///< the first row's first sample, the first of a group of four
    int16_t* previous;
    int width;        ///< samples from row to row
    int count;        ///< samples of each row, a multiple of four
    int rows;         ///< how many
    int dampingShift; ///< 0 to 15
};

/// The picture that is displaced, as one run of pixels whose rows are as long as the field's, and where it is shown.
struct ShownRows {
    const uint16_t* picture;
    int pixelCount;      ///< of the whole picture
    int firstPixel;      ///< of the picture, below the first row's first sample
    int refractionShift; ///< 0 to 15
    uint16_t* target;    ///< pixel of the first row's first sample
    ptrdiff_t targetStride;
};

/// The water's rules for many samples.
struct WaterKernels {
    /// `previous` becomes the next height.
    void (*stepRows)(const WaterRows& water);

    /// The same, and each target pixel becomes the picture's, displaced by the slope of `current`; a pixel that would
    /// come from off the picture is not displaced.
    void (*showRows)(const WaterRows& water, const ShownRows& shown);
};

/// The kernels for the best instruction set of this machine; all give the same heights and pixels.
const WaterKernels& BestWaterKernels();
