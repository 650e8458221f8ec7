#pragma once

#include <cstddef>
#include <cstdint>

/// The steps of scaling a row of `count` pixels, by scale_rules.h.
struct ScaleKernels {
    static constexpr size_t MOST_LANES = 16;

    void (*convert)(const uint16_t* source, uint32_t* target, size_t count);
    /// Pixel i is source[first[i]] mixed with the one behind by weights[i]. Up to MOST_LANES pixels behind those are
    /// read.
    void (*stretch)(const uint32_t* source, const uint32_t* first, const uint32_t* weights, uint32_t* target,
                    size_t count);
    void (*mix)(const uint32_t* upper, const uint32_t* lower, uint32_t weight, uint32_t* target, size_t count);
};

/// The kernels for the best instruction set of this machine; all give the same pixels.
const ScaleKernels& BestScaleKernels();
