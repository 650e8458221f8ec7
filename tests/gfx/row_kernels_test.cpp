#include "gfx/row_kernels.h"

#include "gfx/pixel_rules.h"
#include "support/instruction_sets.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <set>
#include <vector>

namespace
{
constexpr size_t GUARD = 40; ///< target pixels behind the row; more than any vector has
constexpr size_t GROUP = 4;

/// A row at some alignment. Source and alpha end where the kernel must stop to read, so that a sanitiser sees more.
struct Row {
    size_t offset;
    size_t count;
    std::vector<uint16_t> sourceBuffer;
    std::vector<uint8_t> alphaBuffer;
    std::vector<uint16_t> targetBuffer;
    int weight;
    uint16_t colour;

    const uint16_t* Source() const { return sourceBuffer.data() + offset; }
    const uint8_t* Alpha() const { return alphaBuffer.data() + offset; }
    uint16_t* Target() { return targetBuffer.data() + offset; }
};

bool IsOpaqueGroup(const Row& row, size_t i)
{
    const uint8_t* group = row.Alpha() + i / GROUP * GROUP;
    return std::count(group, group + GROUP, 31) == GROUP;
}

template <RowKernels::PixelRow RowKernels::*KERNEL>
void RunPixels(const RowKernels& kernels, Row& row)
{
    (kernels.*KERNEL)(row.Source(), row.Target(), row.count);
}

template <RowKernels::WeightedRow RowKernels::*KERNEL>
void RunWeighted(const RowKernels& kernels, Row& row)
{
    (kernels.*KERNEL)(row.Source(), row.Target(), row.count, row.weight);
}

void RunAlpha(const RowKernels& kernels, Row& row)
{
    kernels.alpha(row.Source(), row.Alpha(), row.Target(), row.count);
}

void RunAlphaOpacity(const RowKernels& kernels, Row& row)
{
    kernels.alphaOpacity(row.Source(), row.Alpha(), row.Target(), row.count, row.weight);
}

void RunGlyph(const RowKernels& kernels, Row& row)
{
    kernels.glyph(row.Alpha(), row.Target(), row.count, row.colour);
}

struct KernelCase {
    const char* name;
    int maxAlpha;
    void (*run)(const RowKernels& kernels, Row& row);
    uint16_t (*rule)(const Row& row, size_t i, uint16_t source, uint16_t target);
};

const KernelCase kernelCases[] = {
    { "copy", 0, RunPixels<&RowKernels::copy>, [](const Row&, size_t, uint16_t source, uint16_t) { return source; } },
    { "colorKey", 0, RunPixels<&RowKernels::colorKey>,
      [](const Row&, size_t, uint16_t source, uint16_t target) { return ColorKeyPixel(source, target); } },
    { "add", 0, RunPixels<&RowKernels::add>,
      [](const Row&, size_t, uint16_t source, uint16_t target) { return AddPixel(source, target); } },
    { "sub", 0, RunPixels<&RowKernels::sub>,
      [](const Row&, size_t, uint16_t source, uint16_t target) { return SubPixel(source, target); } },
    { "alpha", 31, RunAlpha,
      [](const Row& row, size_t i, uint16_t source, uint16_t target) {
          return IsOpaqueGroup(row, i) ? source : AlphaPixel(source, target, row.Alpha()[i]);
      } },
    { "alphaOpacity", 31, RunAlphaOpacity,
      [](const Row& row, size_t i, uint16_t source, uint16_t target) {
          return AlphaOpacityPixel(source, target, row.Alpha()[i], row.weight);
      } },
    { "opacityColorKey", 0, RunWeighted<&RowKernels::opacityColorKey>,
      [](const Row& row, size_t, uint16_t source, uint16_t target) {
          return OpacityColorKeyPixel(source, target, row.weight);
      } },
    { "fadeToBlack", 0, RunWeighted<&RowKernels::fadeToBlack>,
      [](const Row& row, size_t, uint16_t source, uint16_t) { return FadeToBlackPixel(source, row.weight); } },
    { "glyph", 16, RunGlyph,
      [](const Row& row, size_t i, uint16_t, uint16_t target) {
          return GlyphPixel(row.colour, target, row.Alpha()[i]);
      } },
    { "toRgb555", 0, RunPixels<&RowKernels::toRgb555>,
      [](const Row&, size_t, uint16_t source, uint16_t) { return Rgb555Pixel(source); } },
};

class RowMaker
{
public:
    Row Make(size_t offset, size_t count, int maxAlpha)
    {
        Row row = { offset, count, {}, {}, {}, Number(0, 32), Colour() };
        row.sourceBuffer.resize(offset + count);
        row.alphaBuffer.resize(offset + (count + GROUP - 1) / GROUP * GROUP);
        row.targetBuffer.resize(offset + count + GUARD);
        std::generate(row.sourceBuffer.begin(), row.sourceBuffer.end(), [this] { return Colour(); });
        std::generate(row.targetBuffer.begin(), row.targetBuffer.end(), [this] { return Colour(); });
        for (size_t first = 0; first < row.alphaBuffer.size();) // runs, often of the ends of the range
            for (int run = Number(1, 40), value = Alpha(maxAlpha); run > 0 && first < row.alphaBuffer.size(); --run)
                row.alphaBuffer[first++] = static_cast<uint8_t>(run % 4 == 3 ? Alpha(maxAlpha) : value);
        return row;
    }

private:
    int Number(int low, int high) { return std::uniform_int_distribution(low, high)(engine); }
    uint16_t Colour() { return static_cast<uint16_t>(Number(0, 4) == 0 ? COLOR_KEY : Number(0, 0xFFFF)); }
    int Alpha(int most) { return Number(0, 3) == 0 ? Number(0, most) : Number(0, 1) * most; }

    std::mt19937 engine{ 565 };
};

/// What the target's buffer must hold afterwards: what lies beside the row is unchanged.
std::vector<uint16_t> Expected(const KernelCase& kernel, const Row& row)
{
    std::vector<uint16_t> buffer = row.targetBuffer;
    for (size_t i = 0; i < row.count; ++i)
        buffer[row.offset + i] = kernel.rule(row, i, row.Source()[i], buffer[row.offset + i]);
    return buffer;
}
}

TEST(RowKernels, AgreeWithThePixelRulesAtEveryWidthAndAlignment)
{
    OnEveryInstructionSet([] {
        RowMaker maker;
        const RowKernels& kernels = BestRowKernels();
        for (const KernelCase& kernel : kernelCases) {
            for (size_t count = 1; count < 140; ++count) {
                for (size_t offset = 0; offset < 9; ++offset) {
                    Row row = maker.Make(offset, count, kernel.maxAlpha);
                    const std::vector<uint16_t> expected = Expected(kernel, row);
                    kernel.run(kernels, row);
                    ASSERT_EQ(row.targetBuffer, expected) << kernel.name << ", " << count << " pixels at " << offset;
                }
            }
        }
    });
}

TEST(RowKernels, AreOthersForEachInstructionSet)
{
    std::set<const RowKernels*> forms;
    OnEveryInstructionSet([&forms] { forms.insert(&BestRowKernels()); });
    EXPECT_EQ(forms.size(), hwy::SupportedAndGeneratedTargets().size());
    EXPECT_GT(forms.size(), 1U);
}
