// Compiled once per instruction set. Vectors begin where a group of four samples does. Inlining is asked for where a
// rule's constants would otherwise be loaded anew for each vector.
#include "game/water_rows.h"

#include "game/water_rules.h"

#include <algorithm>
#include <bit>
#include <cstring>

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
constexpr size_t MOST_LANES = 16; ///< in wider vectors each load of a neighbour would lie across two cache lines
constexpr size_t EIGHT = 8;

// Which lanes are the first of their group of four, the last, or one of both.
alignas(64) constexpr int16_t FIRST[MOST_LANES] = { -1, 0, 0, 0, -1, 0, 0, 0, -1, 0, 0, 0, -1, 0, 0, 0 };
alignas(64) constexpr int16_t LAST[MOST_LANES] = { 0, 0, 0, -1, 0, 0, 0, -1, 0, 0, 0, -1, 0, 0, 0, -1 };
alignas(64) constexpr int16_t OUTER[MOST_LANES] = { -1, 0, 0, -1, -1, 0, 0, -1, -1, 0, 0, -1, -1, 0, 0, -1 };
alignas(64) constexpr int32_t LANE_NUMBERS[MOST_LANES] = { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15 };

struct StepRule {
    static constexpr size_t LEAST_LANES = WATER_GROUP;

    const int16_t* current;
    int16_t* previous;
    ptrdiff_t width;
    int dampingShift;

    WaterNeighbours Around(size_t x) const
    {
        const int16_t* sample = current + x;
        return { sample[-width], sample[width], sample[-1], sample[1] };
    }

    void Sample(size_t x) const
    {
        const int place = static_cast<int>(x % WATER_GROUP);
        previous[x] = NextHeight(NeighbourSum(Around(x), place), previous[x], dampingShift);
    }

    template <class Lanes>
    HWY_INLINE void Vector(Lanes lanes, size_t x) const
    {
        const int16_t* first = current + x;
        Step(lanes, x, hn::LoadU(lanes, first - width), hn::LoadU(lanes, first + width), hn::LoadU(lanes, first - 1),
             hn::LoadU(lanes, first + 1));
    }

    template <class Lanes, class V>
    HWY_INLINE void Step(Lanes lanes, size_t x, V up, V down, V left, V right) const
    {
        const V sum = NeighbourSums(lanes, up, down, left, right);
        const V next = hn::SaturatedSub(hn::ShiftRight<1>(sum), hn::LoadU(lanes, previous + x));
        hn::StoreU(hn::SaturatedSub(next, hn::ShiftRightSame(next, dampingShift)), lanes, previous + x);
    }

    template <class Lanes, class V>
    static HWY_INLINE V NeighbourSums(Lanes lanes, V up, V down, V left, V right)
    {
        const auto isFirst = hn::MaskFromVec(hn::Load(lanes, FIRST));
        const auto isLast = hn::MaskFromVec(hn::Load(lanes, LAST));
        const auto isOuter = hn::MaskFromVec(hn::Load(lanes, OUTER));
        const V pair = hn::SaturatedAdd(up, hn::IfThenElse(isFirst, left, down));
        const V third = hn::IfThenElse(isFirst, down, hn::IfThenElse(isLast, left, right));
        const V fourth = hn::IfThenElse(isOuter, right, left);
        return hn::SaturatedAdd(hn::SaturatedAdd(pair, third), fourth);
    }
};

/// Eights of displaced pixels, and where in the picture these are. They are copied when a stretch of a row has been
/// worked out: a load that follows the store of its own address waits for it.
struct DisplacedEights {
    static constexpr size_t MOST = 64;

    alignas(64) int32_t places[MOST * EIGHT];
    uint16_t* targets[MOST];
    size_t count = 0;

    /// The loads are what takes the time, so places come two at a time and eight pixels go in one store.
    void CopyFrom(const uint16_t* picture)
    {
        static_assert(std::endian::native == std::endian::little);
        for (size_t i = 0; i < count; ++i) {
            uint64_t pairs[EIGHT / 2];
            std::memcpy(pairs, places + EIGHT * i, sizeof(pairs));
            const auto even = [&](size_t pair) { return picture[static_cast<uint32_t>(pairs[pair])]; };
            const auto odd = [&](size_t pair) { return picture[pairs[pair] >> 32]; };
            const uint16_t pixels[EIGHT] = { even(0), odd(0), even(1), odd(1), even(2), odd(2), even(3), odd(3) };
            std::memcpy(targets[i], pixels, sizeof(pixels));
        }
        count = 0;
    }
};

/// Shows the picture displaced by the slopes before the step, and steps.
struct ShowRule {
    static constexpr size_t LEAST_LANES = EIGHT;

    StepRule step;
    ShownRows shown;
    DisplacedEights& displaced;

    void Sample(size_t x) const
    {
        const auto [rows, columns] = DisplacementAt(step.Around(x), shown.refractionShift);
        const ptrdiff_t plain = shown.firstPixel + static_cast<ptrdiff_t>(x);
        const ptrdiff_t place = plain + rows * step.width + columns;
        shown.target[x] = shown.picture[place >= 0 && place < shown.pixelCount ? place : plain];
        step.Sample(x);
    }

    template <class Lanes>
    HWY_INLINE void Vector(Lanes lanes, size_t x) const
    {
        const int16_t* first = step.current + x;
        const auto up = hn::LoadU(lanes, first - step.width);
        const auto down = hn::LoadU(lanes, first + step.width);
        const auto left = hn::LoadU(lanes, first - 1);
        const auto right = hn::LoadU(lanes, first + 1);
        step.Step(lanes, x, up, down, left, right);
        const int halfShift = std::min(shown.refractionShift + 1, 15);
        const auto rows = hn::ShiftRightSame(hn::SaturatedSub(up, down), shown.refractionShift);
        const auto columns = hn::ShiftRightSame(hn::SaturatedSub(left, right), halfShift);
        if (!hn::AllTrue(lanes, hn::Eq(hn::Or(rows, columns), hn::Zero(lanes))))
            return FindPlaces(lanes, x, rows, columns);
        const hn::RebindToUnsigned<Lanes> pixels;
        hn::StoreU(hn::LoadU(pixels, shown.picture + shown.firstPixel + x), pixels, shown.target + x);
    }

    template <class Lanes, class V>
    HWY_INLINE void FindPlaces(Lanes lanes, size_t x, V rows, V columns) const
    {
        HWY_ALIGN int16_t rowsAt[hn::MaxLanes(lanes)];
        HWY_ALIGN int16_t columnsAt[hn::MaxLanes(lanes)];
        hn::Store(rows, lanes, rowsAt);
        hn::Store(columns, lanes, columnsAt);
        const hn::RepartitionToWide<Lanes> wide;
        const size_t count = hn::Lanes(wide);
        const auto start = hn::Set(wide, shown.firstPixel + static_cast<int>(x));
        int32_t* places = displaced.places + EIGHT * displaced.count;
        for (size_t lane = 0; lane < 2 * count; lane += count) {
            const auto plain = hn::Add(start, hn::LoadU(wide, LANE_NUMBERS + lane));
            FindPlacesOfHalf(wide, plain, rowsAt + lane, columnsAt + lane, places + lane);
        }
        for (size_t lane = 0; lane < 2 * count; lane += EIGHT)
            displaced.targets[displaced.count++] = shown.target + x + lane;
    }

    template <class Wide, class V>
    HWY_INLINE void FindPlacesOfHalf(Wide wide, V plain, const int16_t* rowsAt, const int16_t* columnsAt,
                                     int32_t* places) const
    {
        const hn::Rebind<int16_t, Wide> narrow;
        const hn::RebindToUnsigned<Wide> offsets; // as one of these, a place before the picture is behind it
        const auto rows = hn::PromoteTo(wide, hn::Load(narrow, rowsAt));
        const auto columns = hn::PromoteTo(wide, hn::Load(narrow, columnsAt));
        const auto down = hn::Mul(rows, hn::Set(wide, static_cast<int>(step.width)));
        const auto place = hn::Add(hn::Add(plain, columns), down);
        const auto end = hn::Set(offsets, static_cast<uint32_t>(shown.pixelCount));
        const auto isInside = hn::RebindMask(wide, hn::Lt(hn::BitCast(offsets, place), end));
        hn::StoreU(hn::IfThenElse(isInside, place, plain), wide, places);
    }
};

constexpr hn::CappedTag<int16_t, MOST_LANES> widest;

/// The rule for that many rows further down.
StepRule RuleOfRow(const WaterRows& water, int row)
{
    const ptrdiff_t start = ptrdiff_t{ row } * water.width;
    return { water.current + start, water.previous + start, water.width, water.dampingShift };
}

void StepRows(const WaterRows& water)
{
    for (int row = 0; row < water.rows; ++row)
        ApplyToRow(widest, RuleOfRow(water, row), 0, static_cast<size_t>(water.count));
}

void ShowRows(const WaterRows& water, const ShownRows& shown)
{
    DisplacedEights displaced;
    const size_t count = static_cast<size_t>(water.count);
    for (int row = 0; row < water.rows; ++row) {
        ShowRule rule{ RuleOfRow(water, row), shown, displaced };
        rule.shown.firstPixel += row * water.width;
        rule.shown.target += row * shown.targetStride;
        for (size_t first = 0; first < count; first += DisplacedEights::MOST * EIGHT) {
            ApplyToRow(widest, rule, first, std::min(first + DisplacedEights::MOST * EIGHT, count));
            displaced.CopyFrom(shown.picture);
        }
    }
}

const WaterKernels& Kernels()
{
    static constexpr WaterKernels kernels = { .stepRows = StepRows, .showRows = ShowRows };
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
