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
template <class Rule>
void ForEachPixel(const Rule& rule, size_t count)
{
    constexpr hn::CappedTag<uint32_t, ScaleKernels::MOST_LANES> lanes;
    size_t i = 0;
    if constexpr (hn::MaxLanes(lanes) > 1)
        for (const size_t step = hn::Lanes(lanes); i + step <= count; i += step)
            rule.Vector(lanes, i);
    for (; i < count; ++i)
        rule.Pixel(i);
}

/// Times 255/31 or 2040/63, rounded down, for what such a part of a pixel can be.
template <int FACTOR, int SHIFT, class Lanes, class V>
V Widen(Lanes lanes, V part)
{
    return hn::ShiftRight<SHIFT>(hn::Mul(part, hn::Set(lanes, FACTOR)));
}

struct ConvertRule {
    const uint16_t* source;
    uint32_t* target;

    void Pixel(size_t i) const { target[i] = ConvertPixel(source[i]); }

    template <class Lanes>
    void Vector(Lanes lanes, size_t i) const
    {
        const hn::Rebind<uint16_t, Lanes> words;
        const auto all = hn::LoadU(words, source + i);
        const auto red = Widen<1053, 7>(words, hn::ShiftRight<11>(all));
        const auto blue = Widen<1053, 7>(words, hn::And(all, hn::Set(words, 31)));
        const auto highGreen = Widen<259, 3>(words, hn::And(hn::ShiftRight<8>(all), hn::Set(words, 7)));
        const auto lowGreen = hn::And(hn::ShiftRight<3>(all), hn::Set(words, 28));
        const auto low = hn::Or(hn::ShiftLeft<8>(hn::Add(highGreen, lowGreen)), blue);
        const auto high = hn::PromoteTo(lanes, hn::Or(red, hn::Set(words, 0xFF00)));
        hn::StoreU(hn::Or(hn::ShiftLeft<16>(high), hn::PromoteTo(lanes, low)), lanes, target + i);
    }
};

/// MixPixels of each lane; the even and the odd bytes each in 16 bits.
template <class Lanes, class V>
V Mix(Lanes lanes, V a, V b, V weights)
{
    const hn::Repartition<uint16_t, Lanes> channels;
    const auto from = hn::BitCast(channels, a);
    const auto to = hn::BitCast(channels, b);
    const auto parts = hn::BitCast(channels, hn::Or(weights, hn::ShiftLeft<16>(weights)));
    const auto low = hn::Set(channels, 0x00FF);
    const auto high = hn::Set(channels, 0xFF00);
    const auto half = hn::Set(channels, 128);
    const auto evenChange = hn::Mul(hn::Sub(hn::And(to, low), hn::And(from, low)), parts);
    const auto oddChange = hn::Mul(hn::Sub(hn::ShiftRight<8>(to), hn::ShiftRight<8>(from)), parts);
    const auto even = hn::Add(hn::Add(hn::ShiftLeft<8>(from), half), evenChange);
    const auto odd = hn::Add(hn::Add(hn::And(from, high), half), oddChange);
    return hn::BitCast(lanes, hn::Or(hn::ShiftRight<8>(even), hn::And(odd, high)));
}

struct StretchRule {
    const uint32_t* source;
    const uint32_t* first;
    const uint32_t* weights;
    uint32_t* target;

    void Pixel(size_t i) const { target[i] = MixPixels(source[first[i]], source[first[i] + 1], weights[i]); }

    template <class Lanes>
    void Vector(Lanes lanes, size_t i) const
    {
        const uint32_t* const part = source + first[i];
        const auto offsets = hn::Sub(hn::LoadU(lanes, first + i), hn::Set(lanes, first[i]));
        const auto indices = hn::IndicesFromVec(lanes, offsets);
        const auto a = hn::TableLookupLanes(hn::LoadU(lanes, part), indices);
        const auto b = hn::TableLookupLanes(hn::LoadU(lanes, part + 1), indices);
        hn::StoreU(Mix(lanes, a, b, hn::LoadU(lanes, weights + i)), lanes, target + i);
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

void ConvertRow(const uint16_t* source, uint32_t* target, size_t count)
{
    ForEachPixel(ConvertRule{ source, target }, count);
}

void StretchRow(const uint32_t* source, const uint32_t* first, const uint32_t* weights, uint32_t* target, size_t count)
{
    const StretchRule rule = { source, first, weights, target };
    if (first[count - 1] < count)
        return ForEachPixel(rule, count);
    for (size_t i = 0; i < count; ++i) // a row made shorter: a vector's pixels lie too far apart
        rule.Pixel(i);
}

void MixRows(const uint32_t* upper, const uint32_t* lower, uint32_t weight, uint32_t* target, size_t count)
{
    ForEachPixel(MixRule{ upper, lower, weight, target }, count);
}

const ScaleKernels& Kernels()
{
    static constexpr ScaleKernels kernels = { .convert = ConvertRow, .stretch = StretchRow, .mix = MixRows };
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
