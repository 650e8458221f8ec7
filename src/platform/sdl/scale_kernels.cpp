// Compiled once per instruction set.
#include "platform/sdl/scale_kernels.h"

#include "platform/sdl/scale_rules.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "platform/sdl/scale_kernels.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// Applies rule.Vector(lanes, i) to as many pixels from i on as there are lanes, and rule.Pixel(i) to those left over.
template <class Lanes, class Rule>
void ForEachPixel(Lanes lanes, const Rule& rule, size_t count)
{
    size_t i = 0;
    if constexpr (hn::MaxLanes(lanes) > 1)
        for (const size_t step = hn::Lanes(lanes); i + step <= count; i += step)
            rule.Vector(lanes, i);
    for (; i < count; ++i)
        rule.Pixel(i);
}

constexpr hn::CappedTag<uint32_t, ScaleKernels::MOST_LANES> pixels;

struct ConvertRule {
    const uint16_t* source;
    uint32_t* target;

    void Pixel(size_t i) const { target[i] = ConvertPixel(source[i]); }

    template <class Lanes>
    void Vector(Lanes lanes, size_t i) const
    {
        const auto all = hn::LoadU(lanes, source + i);
        const auto wide5 = hn::Set(lanes, 1053); // times 255/31, rounded down, after a shift by 7
        const auto red = hn::ShiftRight<7>(hn::Mul(hn::ShiftRight<11>(all), wide5));
        const auto blue = hn::ShiftRight<7>(hn::Mul(hn::And(all, hn::Set(lanes, 31)), wide5));
        const auto highGreen = hn::MulHigh(hn::And(all, hn::Set(lanes, 0x0700)), hn::Set(lanes, 8288)); // 2040/63
        const auto green = hn::Add(highGreen, hn::And(hn::ShiftRight<3>(all), hn::Set(lanes, 28)));
        const auto low = hn::Or(hn::ShiftLeft<8>(green), blue);
        hn::StoreInterleaved2(low, hn::Or(red, hn::Set(lanes, 0xFF00)), lanes, reinterpret_cast<uint16_t*>(target + i));
    }
};

/// MixPixels of each lane: the changes of the even and the odd bytes, each in 16 bits.
template <class Lanes, class V>
V Mix(Lanes lanes, V a, V b, V weights)
{
    const hn::Repartition<uint16_t, Lanes> bytes;
    const hn::Repartition<int16_t, Lanes> channels;
    const auto from = hn::BitCast(bytes, a);
    const auto to = hn::BitCast(bytes, b);
    const auto shares = hn::BitCast(channels, weights);
    const auto low = hn::Set(bytes, 0x00FF);
    const auto even = hn::BitCast(channels, hn::Sub(hn::And(to, low), hn::And(from, low)));
    const auto odd = hn::BitCast(channels, hn::Sub(hn::ShiftRight<8>(to), hn::ShiftRight<8>(from)));
    const auto evenPart = hn::MulFixedPoint15(even, shares);
    const auto oddPart = hn::ShiftLeft<8>(hn::MulFixedPoint15(odd, shares));
    return hn::BitCast(lanes, hn::Add(hn::Add(hn::BitCast(channels, from), evenPart), oddPart));
}

struct RepeatRule {
    const uint32_t* source;
    StretchTable table;
    uint32_t* target;

    void Pixel(size_t i) const { target[i] = source[table.first[i]]; }

    template <class Lanes>
    void Vector(Lanes lanes, size_t i) const
    {
        const auto offsets = hn::IndicesFromVec(lanes, hn::LoadU(lanes, table.offsets + i));
        const auto part = hn::LoadU(lanes, source + table.first[i]);
        hn::StoreU(hn::TableLookupLanes(part, offsets), lanes, target + i);
    }
};

struct StretchRule {
    const uint32_t* source;
    StretchTable table;
    uint32_t* target;

    void Pixel(size_t i) const
    {
        const uint32_t* const first = source + table.first[i];
        target[i] = MixPixels(first[0], first[1], table.weights[i]);
    }

    template <class Lanes>
    void Vector(Lanes lanes, size_t i) const
    {
        const auto offsets = hn::IndicesFromVec(lanes, hn::LoadU(lanes, table.offsets + i));
        const uint32_t* const part = source + table.first[i];
        const auto a = hn::TableLookupLanes(hn::LoadU(lanes, part), offsets);
        const auto b = hn::TableLookupLanes(hn::LoadU(lanes, part + 1), offsets);
        hn::StoreU(Mix(lanes, a, b, hn::LoadU(lanes, table.weights + i)), lanes, target + i);
    }
};

struct MixRule {
    const uint32_t* upper;
    const uint32_t* lower;
    uint32_t weight;
    uint32_t* target;

    void Pixel(size_t i) const { target[i] = MixPixels(upper[i], lower[i], weight); }

    template <class Lanes>
    void Vector(Lanes lanes, size_t i) const
    {
        const auto mixed = Mix(lanes, hn::LoadU(lanes, upper + i), hn::LoadU(lanes, lower + i), hn::Set(lanes, weight));
        hn::StoreU(mixed, lanes, target + i);
    }
};

/// A row made shorter goes pixel by pixel: those of a vector lie too far apart.
template <class Rule>
void WidenRow(const Rule& rule, size_t count)
{
    if (rule.table.first[count - 1] < count)
        return ForEachPixel(pixels, rule, count);
    for (size_t i = 0; i < count; ++i)
        rule.Pixel(i);
}

void ConvertRow(const uint16_t* source, uint32_t* target, size_t count)
{
    ForEachPixel(hn::ScalableTag<uint16_t>(), ConvertRule{ source, target }, count);
}

void FindOffsets(const uint32_t* first, uint32_t* offsets, size_t count)
{
    const size_t step = hn::Lanes(pixels);
    for (size_t i = 0; i < count; ++i)
        offsets[i] = first[i] - first[i / step * step];
}

void RepeatRow(const uint32_t* source, const StretchTable& table, uint32_t* target, size_t count)
{
    WidenRow(RepeatRule{ source, table, target }, count);
}

void StretchRow(const uint32_t* source, const StretchTable& table, uint32_t* target, size_t count)
{
    WidenRow(StretchRule{ source, table, target }, count);
}

void MixRows(const uint32_t* upper, const uint32_t* lower, uint32_t weight, uint32_t* target, size_t count)
{
    ForEachPixel(pixels, MixRule{ upper, lower, weight, target }, count);
}

const ScaleKernels& Kernels()
{
    static constexpr ScaleKernels kernels = {
        .convert = ConvertRow,
        .findOffsets = FindOffsets,
        .repeat = RepeatRow,
        .stretch = StretchRow,
        .mix = MixRows,
    };
    return kernels;
}
}
}
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace
{
HWY_EXPORT(Kernels);
}

const ScaleKernels& BestScaleKernels()
{
    return HWY_DYNAMIC_DISPATCH(Kernels)();
}
#endif
