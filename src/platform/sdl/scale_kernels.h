#pragma once

#include <cstddef>
#include <cstdint>

/// Where the pixels of a stretched row come from.
struct StretchTable {
    const uint32_t* first;   ///< the pixel of the source
    const uint32_t* offsets; ///< by findOffsets
    const uint32_t* weights; ///< the shares of the pixels behind those
};

/// The steps of scaling a row of `count` pixels, by scale_rules.h.
struct ScaleKernels {
    static constexpr size_t MOST_LANES = 16;

    void (*convert)(const uint16_t* source, uint32_t* target, size_t count);
    /// What `repeat` and `stretch` want to know of `first`, which never falls: how far behind that of its vector's
    /// first pixel each one's is.
    void (*findOffsets)(const uint32_t* first, uint32_t* offsets, size_t count);
    /// Pixel i is source[first[i]]. Up to MOST_LANES pixels behind the last one are read.
    void (*repeat)(const uint32_t* source, const StretchTable& table, uint32_t* target, size_t count);
    /// Pixel i is that mixed with the one behind. As many behind that are read.
    void (*stretch)(const uint32_t* source, const StretchTable& table, uint32_t* target, size_t count);
    void (*mix)(const uint32_t* upper, const uint32_t* lower, uint32_t weight, uint32_t* target, size_t count);
};

/// The kernels for the best instruction set of this machine; all give the same pixels.
const ScaleKernels& BestScaleKernels();
