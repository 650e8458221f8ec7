// Compiled once per instruction set. Each rule says what becomes of a row's target pixels from pixel i on: of one, as
// pixel_rules.h has it, or of as many as a vector has lanes. Both forms agree for every input.
#include "gfx/row_kernels.h"

#include "gfx/pixel_rules.h"

#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "gfx/row_kernels.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "gfx/vector_rows.h"

HWY_BEFORE_NAMESPACE();
namespace
{
namespace HWY_NAMESPACE
{
constexpr size_t GROUP = 4; ///< pixels whose alpha values are looked at together
constexpr uint8_t OPAQUE_ALPHA = 31;

/// A rule for pixels together with the row that they replace.
template <class PixelRule>
struct TargetRule {
    static constexpr size_t LEAST_LANES = GROUP;

    PixelRule rule;
    uint16_t* target;

    void Sample(size_t i) const { target[i] = rule.Pixel(i, target[i]); }

    template <class Lanes>
    void Vector(Lanes lanes, size_t i) const
    {
        hn::StoreU(rule.Vector(lanes, i, hn::LoadU(lanes, target + i)), lanes, target + i);
    }
};

/// Makes a row by a rule for pixels, which is made of what is given.
template <class PixelRule, class... Given>
void RuleRow(uint16_t* target, size_t count, Given... given)
{
    ApplyToRow(hn::ScalableTag<uint16_t>(), TargetRule<PixelRule>{ { given... }, target }, 0, count);
}

/// Pixels from vectors that each have one channel in its place; blue has nothing beside it.
template <class Lanes, class V>
V JoinChannels(Lanes lanes, V red, V green, V blue)
{
    const V redAndBlue = hn::OrAnd(blue, red, hn::Set(lanes, RED_MASK));
    return hn::OrAnd(redAndBlue, green, hn::Set(lanes, GREEN_MASK));
}

/// BlendChannel of pixel_rules.h, but for the mask that cuts off what lies above the channel.
template <int SHIFT, class V>
V BlendChannel(V kept, V blended, V weight, V mask)
{
    const V keptPart = hn::And(kept, mask);
    const V change = hn::Mul(hn::Sub(hn::And(blended, mask), keptPart), weight);
    return hn::Add(hn::ShiftRight<SHIFT>(change), keptPart);
}

template <int SHIFT, class Lanes, class V>
V BlendPixels(Lanes lanes, V kept, V blended, V weight)
{
    const V blueMask = hn::Set(lanes, BLUE_MASK);
    const V change = hn::Sub(hn::ShiftRight<SHIFT>(blended), hn::ShiftRight<SHIFT>(kept));
    const V red = hn::Add(hn::Mul(change, weight), kept);
    const V green = BlendChannel<SHIFT>(kept, blended, weight, hn::Set(lanes, GREEN_MASK));
    const V blue = BlendChannel<SHIFT>(kept, blended, weight, blueMask);
    return JoinChannels(lanes, red, green, hn::And(blue, blueMask));
}

/// As many bytes as there are lanes, each in its lane.
template <class Lanes>
hn::Vec<Lanes> LoadBytes(Lanes lanes, const uint8_t* bytes)
{
    return hn::PromoteTo(lanes, hn::LoadU(hn::Rebind<uint8_t, Lanes>(), bytes));
}

struct ColorKeyRule {
    const uint16_t* source;

    uint16_t Pixel(size_t i, uint16_t target) const { return ColorKeyPixel(source[i], target); }

    template <class Lanes, class V>
    V Vector(Lanes lanes, size_t i, V target) const
    {
        const V pixels = hn::LoadU(lanes, source + i);
        return hn::IfThenElse(hn::Eq(pixels, hn::Set(lanes, COLOR_KEY)), target, pixels);
    }
};

/// Of blue and green together, the carries and borrows between the two are part.
constexpr uint16_t GREEN_AND_BLUE = GREEN_MASK | BLUE_MASK;

template <class Lanes, class V>
V Masked(Lanes lanes, V pixels, uint16_t mask)
{
    return hn::And(pixels, hn::Set(lanes, mask));
}

struct AddRule {
    const uint16_t* source;

    uint16_t Pixel(size_t i, uint16_t target) const { return AddPixel(source[i], target); }

    template <class Lanes, class V>
    V Vector(Lanes lanes, size_t i, V target) const
    {
        const V pixels = hn::LoadU(lanes, source + i);
        const V green = hn::Add(Masked(lanes, pixels, GREEN_AND_BLUE), Masked(lanes, target, GREEN_AND_BLUE));
        const V blue = hn::Add(Masked(lanes, pixels, BLUE_MASK), Masked(lanes, target, BLUE_MASK));
        return JoinChannels(lanes, hn::SaturatedAdd(pixels, target), hn::Min(green, hn::Set(lanes, GREEN_AND_BLUE)),
                            hn::Min(blue, hn::Set(lanes, BLUE_MASK)));
    }
};

struct SubRule {
    const uint16_t* source;

    uint16_t Pixel(size_t i, uint16_t target) const { return SubPixel(source[i], target); }

    template <class Lanes, class V>
    V Vector(Lanes lanes, size_t i, V target) const
    {
        const V pixels = hn::LoadU(lanes, source + i);
        const V green = hn::SaturatedSub(Masked(lanes, target, GREEN_AND_BLUE), Masked(lanes, pixels, GREEN_AND_BLUE));
        const V blue = hn::SaturatedSub(Masked(lanes, target, BLUE_MASK), Masked(lanes, pixels, BLUE_MASK));
        return JoinChannels(lanes, hn::SaturatedSub(target, pixels), green, blue);
    }
};

struct AlphaRule {
    const uint16_t* source;
    const uint8_t* alpha;

    uint16_t Pixel(size_t i, uint16_t target) const
    {
        // Not the same as blending by 31, which keeps 1/32 of the target. An empty group needs no such care: blending
        // by 0 leaves the target exactly.
        return IsOpaqueGroup(i / GROUP * GROUP) ? source[i] : AlphaPixel(source[i], target, alpha[i]);
    }

    bool IsOpaqueGroup(size_t first) const
    {
        constexpr uint8_t opaque[GROUP] = { OPAQUE_ALPHA, OPAQUE_ALPHA, OPAQUE_ALPHA, OPAQUE_ALPHA };
        return std::memcmp(alpha + first, opaque, GROUP) == 0;
    }

    template <class Lanes, class V>
    V Vector(Lanes lanes, size_t i, V target) const
    {
        const V values = LoadBytes(lanes, alpha + i);
        if (hn::AllTrue(lanes, hn::Eq(values, hn::Zero(lanes))))
            return target;
        const hn::Repartition<uint64_t, Lanes> groups; // GROUP lanes in each
        const auto opaque = hn::Eq(hn::BitCast(groups, hn::Set(lanes, OPAQUE_ALPHA)), hn::BitCast(groups, values));
        const V pixels = hn::LoadU(lanes, source + i);
        if (hn::AllTrue(groups, opaque))
            return pixels;
        // In opaque groups, whose mask is minus one, the weight becomes 32, by which blending is copying.
        const V weights = hn::Sub(values, hn::BitCast(lanes, hn::VecFromMask(groups, opaque)));
        return BlendPixels<5>(lanes, target, pixels, weights);
    }
};

struct AlphaOpacityRule {
    const uint16_t* source;
    const uint8_t* alpha;
    int scale;

    uint16_t Pixel(size_t i, uint16_t target) const { return AlphaOpacityPixel(source[i], target, alpha[i], scale); }

    template <class Lanes, class V>
    V Vector(Lanes lanes, size_t i, V target) const
    {
        const V values = LoadBytes(lanes, alpha + i);
        if (hn::AllTrue(lanes, hn::Eq(values, hn::Zero(lanes))))
            return target;
        const V weights = hn::ShiftRight<5>(hn::Mul(values, hn::Set(lanes, Low16(scale))));
        return BlendPixels<5>(lanes, target, hn::LoadU(lanes, source + i), weights);
    }
};

struct OpacityColorKeyRule {
    const uint16_t* source;
    int targetWeight;

    uint16_t Pixel(size_t i, uint16_t target) const { return OpacityColorKeyPixel(source[i], target, targetWeight); }

    template <class Lanes, class V>
    V Vector(Lanes lanes, size_t i, V target) const
    {
        const V pixels = hn::LoadU(lanes, source + i);
        const V blended = BlendPixels<5>(lanes, pixels, target, hn::Set(lanes, Low16(targetWeight)));
        return hn::IfThenElse(hn::Eq(pixels, hn::Set(lanes, COLOR_KEY)), target, blended);
    }
};

struct FadeToBlackRule {
    const uint16_t* source;
    int blackWeight;

    uint16_t Pixel(size_t i, uint16_t) const { return FadeToBlackPixel(source[i], blackWeight); }

    template <class Lanes, class V>
    V Vector(Lanes lanes, size_t i, V) const
    {
        // A blend with nothing, in fewer steps: only red takes in what is carried from below.
        const V pixels = hn::LoadU(lanes, source + i);
        const V redAndGreen = hn::ShiftRight<5>(pixels);
        const V weight = hn::Set(lanes, Low16(32 - blackWeight));
        const V red = hn::Add(hn::Mul(redAndGreen, hn::Set(lanes, Low16(-blackWeight))), pixels);
        const V green = hn::Mul(hn::And(redAndGreen, hn::Set(lanes, GREEN_MASK >> 5)), weight);
        const V blue = hn::Mul(Masked(lanes, pixels, BLUE_MASK), weight);
        return JoinChannels(lanes, red, green, hn::ShiftRight<5>(blue));
    }
};

struct GlyphRule {
    const uint8_t* coverage;
    uint16_t colour;

    uint16_t Pixel(size_t i, uint16_t target) const { return GlyphPixel(colour, target, coverage[i]); }

    template <class Lanes, class V>
    V Vector(Lanes lanes, size_t i, V target) const
    {
        const V targetWeights = hn::Sub(hn::Set(lanes, 16), LoadBytes(lanes, coverage + i));
        return BlendPixels<4>(lanes, hn::Set(lanes, colour), target, targetWeights);
    }
};

struct Rgb555Rule {
    const uint16_t* source;

    uint16_t Pixel(size_t i, uint16_t) const { return Rgb555Pixel(source[i]); }

    template <class Lanes, class V>
    V Vector(Lanes lanes, size_t i, V) const
    {
        const V pixels = hn::LoadU(lanes, source + i);
        const V blue = Masked(lanes, pixels, BLUE_MASK);
        return hn::OrAnd(blue, hn::ShiftRight<1>(pixels), hn::Set(lanes, RED_GREEN_MASK_555));
    }
};

void CopyRow(uint16_t* target, size_t count, const uint16_t* source)
{
    std::memmove(target, source, count * sizeof(uint16_t)); // has its own forms for each instruction set
}

const RowKernels& Kernels()
{
    static constexpr RowKernels kernels = {
        .copy = CopyRow,
        .colorKey = RuleRow<ColorKeyRule>,
        .add = RuleRow<AddRule>,
        .sub = RuleRow<SubRule>,
        .alpha = RuleRow<AlphaRule>,
        .alphaOpacity = RuleRow<AlphaOpacityRule>,
        .opacityColorKey = RuleRow<OpacityColorKeyRule>,
        .fadeToBlack = RuleRow<FadeToBlackRule>,
        .glyph = RuleRow<GlyphRule>,
        .toRgb555 = RuleRow<Rgb555Rule>,
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

const RowKernels& BestRowKernels()
{
    return HWY_DYNAMIC_DISPATCH(Kernels)();
}
#endif
