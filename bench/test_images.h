#pragma once

#include "gfx/image.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <string>

/// Work to be timed, with all it works on.
using Work = std::function<void()>;

/// So many zeros, aligned as image planes are.
std::shared_ptr<uint8_t> MakeBytes(size_t count);

/// Fills the image with runs of random pixels and of transparent ones, and with random alpha values: no shortcut
/// helps.
void MakeTestImage(CImage& image, int width, int height, unsigned seed);

/// A copy of that many bytes from one place to another, as memcpy does it.
Work CopyBytes(size_t bytes);

/// Registers a benchmark that makes its work and times it, on the best instruction set.
void AddBenchmark(const std::string& name, std::function<Work()> makeWork);

/// The same on the form that works pixel by pixel.
void AddPlainBenchmark(const std::string& name, std::function<Work()> makeWork);
