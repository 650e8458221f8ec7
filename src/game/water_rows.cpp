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

#include "gfx/vector_rows.h"

HWY_BEFORE_NAMESPACE();
namespace
{
namespace HWY_NAMESPACE
{
/// One row of heights among its neighbours.
struct HeightRow {
    const int16_t* samples;
    int width;    ///< samples from row to row
    int16_t left; ///< of the first sample

    WaterNeighbours Around(size_t x) const
    {
        const int16_t* sample = samples + x;
        return { sample[-width], sample[width], x == 0 ? left : sample[-1], sample[1] };
    }
    const int16_t* Above(size_t x) const { return samples + x - width; }
    const int16_t* Below(size_t x) const { return samples + x + width; }
};

struct StepRule {
    HeightRow current;
    int16_t* previous;
    int dampingShift;

    void Sample(size_t x) const
    {
        const int place = static_cast<int>(x % WATER_GROUP);
        previous[x] = NextHeight(NeighbourSum(current.Around(x), place), previous[x], dampingShift);
    }

    template <class Lanes>
    void Vector(Lanes lanes, size_t x) const
    {
        const int16_t* first = current.samples + x;
        const auto sum = NeighbourSums(lanes, hn::LoadU(lanes, current.Above(x)), hn::LoadU(lanes, current.Below(x)),
                                       hn::LoadU(lanes, first - 1), hn::LoadU(lanes, first + 1));
        const auto next = hn::SaturatedSub(hn::ShiftRight<1>(sum), hn::LoadU(lanes, previous + x));
        hn::StoreU(hn::SaturatedSub(next, hn::ShiftRightSame(next, dampingShift)), lanes, previous + x);
    }

    template <class Lanes, class V>
    static V NeighbourSums(Lanes lanes, V up, V down, V left, V right)
    {
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

    void Sample(size_t x) const
    {
        const auto [rows, columns] = DisplacementAt(current.Around(x), refractionShift);
        const ptrdiff_t displaced = firstPixel + static_cast<ptrdiff_t>(x) + ptrdiff_t{ rows } * source.width + columns;
        if (displaced >= 0 && displaced < PixelCount())
            target[x] = source.pixels[displaced];
    }

    template <class Lanes>
    void Vector(Lanes lanes, size_t x) const
    {
        const int16_t* first = current.samples + x;
        const auto rows = Slopes(hn::LoadU(lanes, current.Above(x)), hn::LoadU(lanes, current.Below(x)));
        const auto columns = hn::ShiftRight<1>(Slopes(hn::LoadU(lanes, first - 1), hn::LoadU(lanes, first + 1)));
        if (hn::AllTrue(lanes, hn::Eq(hn::Or(rows, columns), hn::Zero(lanes))))
            return;
        HWY_ALIGN int16_t rowsAt[hn::MaxLanes(lanes)];
        HWY_ALIGN int16_t columnsAt[hn::MaxLanes(lanes)];
        hn::Store(rows, lanes, rowsAt);
        hn::Store(columns, lanes, columnsAt);
        const hn::RepartitionToWide<Lanes> wide;
        const size_t step = hn::Lanes(wide);
        for (size_t lane = 0; lane < 2 * step; lane += step)
            Displace(wide, x + lane, rowsAt + lane, columnsAt + lane);
    }

    template <class V>
    V Slopes(V before, V after) const
    {
        return hn::ShiftRightSame(hn::SaturatedSub(before, after), refractionShift);
    }

    template <class Wide>
    void Displace(Wide wide, size_t x, const int16_t* rowsAt, const int16_t* columnsAt) const
    {
        const hn::Rebind<int16_t, Wide> narrow;
        const auto rows = hn::PromoteTo(wide, hn::Load(narrow, rowsAt));
        const auto columns = hn::PromoteTo(wide, hn::Load(narrow, columnsAt));
        const auto plain = hn::Iota(wide, firstPixel + static_cast<int>(x));
        const auto displaced = hn::Add(hn::Add(plain, columns), hn::Mul(rows, hn::Set(wide, source.width)));
        const auto isBefore = hn::Lt(displaced, hn::Zero(wide));
        const auto isBehind = hn::Gt(displaced, hn::Set(wide, PixelCount() - 1));
        HWY_ALIGN int32_t shown[hn::MaxLanes(wide)];
        hn::Store(hn::IfThenElse(hn::Or(isBefore, isBehind), plain, displaced), wide, shown);
        for (size_t lane = 0; lane < hn::Lanes(wide); ++lane)
            target[x + lane] = source.pixels[shown[lane]];
    }
};

template <class Rule>
void ApplyToHeights(const Rule& rule, int count)
{
    // Vectors take what the run of samples has left of the first one.
    const bool isRun = rule.current.left == rule.current.samples[-1];
    const int plain = isRun ? 0 : std::min(WATER_GROUP, count);
    for (int x = 0; x < plain; ++x)
        rule.Sample(static_cast<size_t>(x));
    ApplyToRow<int16_t>(rule, static_cast<size_t>(plain), static_cast<size_t>(count));
}

void StepRow(const int16_t* current, int16_t* previous, int width, int16_t left, int dampingShift)
{
    ApplyToHeights(StepRule{ { current, width, left }, previous, dampingShift }, width / WATER_GROUP * WATER_GROUP);
}

void RefractRow(const int16_t* current, const WaterSource& source, int x, int y, int count, int16_t left,
                int refractionShift, uint16_t* target)
{
    const int firstPixel = y * source.width + x;
    ApplyToHeights(RefractRule{ { current, source.width, left }, source, firstPixel, refractionShift, target }, count);
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
