// Compiled once per instruction set. Vectors begin where a group of four samples does, so that a lane's number modulo
// four is its place in its group.
#include "game/water_rows.h"

#include "game/water_rules.h"

#include <algorithm>
#include <cstddef>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "game/water_rows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// One row of heights among its neighbours.
struct HeightRow {
    const int16_t* samples;
    int width;    ///< samples from row to row
    int16_t left; ///< of the first sample

    WaterNeighbours Around(int x) const
    {
        const int16_t* sample = samples + x;
        return { sample[-width], sample[width], x == 0 ? left : sample[-1], sample[1] };
    }
};

/// The heights around as many samples as a vector has lanes.
template <class V>
struct VectorNeighbours {
    V up;
    V down;
    V left;
    V right;
};

template <class Lanes>
VectorNeighbours<hn::Vec<Lanes>> LoadAround(Lanes lanes, const HeightRow& row, int x)
{
    const int16_t* first = row.samples + x;
    return { hn::LoadU(lanes, first - row.width), hn::LoadU(lanes, first + row.width), hn::LoadU(lanes, first - 1),
             hn::LoadU(lanes, first + 1) };
}

struct StepRule {
    HeightRow current;
    int16_t* previous;
    int dampingShift;

    void Sample(int x) const
    {
        previous[x] = NextHeight(NeighbourSum(current.Around(x), x % WATER_GROUP), previous[x], dampingShift);
    }

    template <class Lanes>
    void Vector(Lanes lanes, int x) const
    {
        const auto sum = NeighbourSums(lanes, LoadAround(lanes, current, x));
        const auto next = hn::SaturatedSub(hn::ShiftRight<1>(sum), hn::LoadU(lanes, previous + x));
        hn::StoreU(hn::SaturatedSub(next, hn::ShiftRightSame(next, dampingShift)), lanes, previous + x);
    }

    template <class Lanes, class V>
    static V NeighbourSums(Lanes lanes, const VectorNeighbours<V>& heights)
    {
        const auto& [up, down, left, right] = heights;
        const V upAndDown = hn::SaturatedAdd(up, down);
        const V first = hn::SaturatedAdd(hn::SaturatedAdd(hn::SaturatedAdd(left, up), down), right);
        const V middle = hn::SaturatedAdd(hn::SaturatedAdd(upAndDown, right), left);
        const V last = hn::SaturatedAdd(hn::SaturatedAdd(upAndDown, left), right);
        const V place = hn::And(hn::Iota(lanes, 0), hn::Set(lanes, WATER_GROUP - 1));
        const V firstOrMiddle = hn::IfThenElse(hn::Eq(place, hn::Zero(lanes)), first, middle);
        return hn::IfThenElse(hn::Eq(place, hn::Set(lanes, WATER_GROUP - 1)), last, firstOrMiddle);
    }
};

struct RefractRule {
    HeightRow current;
    WaterSource source;
    int firstPixel; ///< of the source, below the row's first sample
    int refractionShift;
    uint16_t* target;

    int PixelCount() const { return source.width * source.height; }

    void Sample(int x) const
    {
        const auto [rows, columns] = DisplacementAt(current.Around(x), refractionShift);
        const ptrdiff_t displaced = ptrdiff_t{ firstPixel } + x + ptrdiff_t{ rows } * source.width + columns;
        if (displaced >= 0 && displaced < PixelCount())
            target[x] = source.pixels[displaced];
    }

    template <class Lanes>
    void Vector(Lanes lanes, int x) const
    {
        const auto [up, down, left, right] = LoadAround(lanes, current, x);
        const auto rows = hn::ShiftRightSame(hn::SaturatedSub(up, down), refractionShift);
        const auto columns = hn::ShiftRight<1>(hn::ShiftRightSame(hn::SaturatedSub(left, right), refractionShift));
        if (hn::AllTrue(lanes, hn::Eq(hn::Or(rows, columns), hn::Zero(lanes))))
            return;
        HWY_ALIGN int16_t rowsAt[hn::MaxLanes(lanes)];
        HWY_ALIGN int16_t columnsAt[hn::MaxLanes(lanes)];
        hn::Store(rows, lanes, rowsAt);
        hn::Store(columns, lanes, columnsAt);
        const hn::RepartitionToWide<Lanes> wide;
        const int step = static_cast<int>(hn::Lanes(wide));
        for (int lane = 0; lane < 2 * step; lane += step)
            Displace(wide, x + lane, rowsAt + lane, columnsAt + lane);
    }

    template <class Wide>
    void Displace(Wide wide, int x, const int16_t* rowsAt, const int16_t* columnsAt) const
    {
        const hn::Rebind<int16_t, Wide> narrow;
        const auto rows = hn::PromoteTo(wide, hn::Load(narrow, rowsAt));
        const auto columns = hn::PromoteTo(wide, hn::Load(narrow, columnsAt));
        const auto plain = hn::Iota(wide, firstPixel + x);
        const auto displaced = hn::Add(hn::Add(plain, columns), hn::Mul(rows, hn::Set(wide, source.width)));
        const auto isBefore = hn::Lt(displaced, hn::Zero(wide));
        const auto isBehind = hn::Gt(displaced, hn::Set(wide, PixelCount() - 1));
        HWY_ALIGN int32_t shown[hn::MaxLanes(wide)];
        hn::Store(hn::IfThenElse(hn::Or(isBefore, isBehind), plain, displaced), wide, shown);
        for (int lane = 0; lane < static_cast<int>(hn::Lanes(wide)); ++lane)
            target[x + lane] = source.pixels[shown[lane]];
    }
};

/// Applies the rule from sample `first` on while there are enough samples for a vector; returns the next sample.
template <class Lanes, class Rule>
int ApplyVectors(Lanes lanes, const Rule& rule, int first, int count)
{
    // With less than a group in a vector, which can mean one lane, the samples' own rule does the whole row.
    if constexpr (hn::MaxLanes(lanes) >= WATER_GROUP) {
        const int step = static_cast<int>(hn::Lanes(lanes));
        for (; first + step <= count; first += step)
            rule.Vector(lanes, first);
    }
    return first;
}

template <class Rule>
void ApplyToRow(const Rule& rule, int count)
{
    // Vectors take what the run of samples has left of the first one.
    const bool isRun = rule.current.left == rule.current.samples[-1];
    int x = 0;
    for (; !isRun && x < std::min(WATER_GROUP, count); ++x)
        rule.Sample(x);
    x = ApplyVectors(hn::ScalableTag<int16_t>(), rule, x, count);
    x = ApplyVectors(hn::CappedTag<int16_t, 16>(), rule, x, count);
    x = ApplyVectors(hn::CappedTag<int16_t, 8>(), rule, x, count);
    x = ApplyVectors(hn::CappedTag<int16_t, 4>(), rule, x, count);
    for (; x < count; ++x)
        rule.Sample(x);
}

void StepRow(const int16_t* current, int16_t* previous, int width, int16_t left, int dampingShift)
{
    ApplyToRow(StepRule{ { current, width, left }, previous, dampingShift }, width / WATER_GROUP * WATER_GROUP);
}

void RefractRow(const int16_t* current, const WaterSource& source, int x, int y, int count, int16_t left,
                int refractionShift, uint16_t* target)
{
    const int firstPixel = y * source.width + x;
    ApplyToRow(RefractRule{ { current, source.width, left }, source, firstPixel, refractionShift, target }, count);
}

const WaterKernels& Kernels()
{
    static constexpr WaterKernels kernels = { .stepRow = StepRow, .refractRow = RefractRow };
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

const WaterKernels& BestWaterKernels()
{
    return HWY_DYNAMIC_DISPATCH(Kernels)();
}
#endif
