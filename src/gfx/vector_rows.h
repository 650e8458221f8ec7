// How a rule is applied to a row. For files that are compiled once per instruction set: each includes this after
// highway.h, once for every set, hence without a guard.
#include <cstddef>

HWY_BEFORE_NAMESPACE();
namespace
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// Applies the rule from sample `first` on while there are enough samples for a vector; returns the next sample.
template <class Lanes, class Rule>
HWY_INLINE size_t ApplyVectors(Lanes lanes, Rule rule, size_t first, size_t count)
{
    // With fewer lanes, which can mean a single one, the samples' own form does the whole row.
    if constexpr (hn::MaxLanes(lanes) >= Rule::LEAST_LANES) {
        const size_t step = hn::Lanes(lanes);
        const size_t end = first + (count - first) / step * step;
        for (; first < end; first += step)
            rule.Vector(lanes, first);
    }
    return first;
}

/// Applies the rule to samples `first` to `count` - 1 of a row, from vectors of `widest` down to single samples:
/// sprites are narrower than a vector. rule.Vector(lanes, i) does as many samples as there are lanes, rule.Sample(i)
/// one.
template <class Widest, class Rule>
void ApplyToRow(Widest widest, const Rule& rule, size_t first, size_t count)
{
    using T = hn::TFromD<Widest>;
    size_t i = ApplyVectors(widest, rule, first, count);
    i = ApplyVectors(hn::CappedTag<T, 16>(), rule, i, count);
    i = ApplyVectors(hn::CappedTag<T, 8>(), rule, i, count);
    i = ApplyVectors(hn::CappedTag<T, 4>(), rule, i, count);
    for (; i < count; ++i)
        rule.Sample(i);
}
}
}
HWY_AFTER_NAMESPACE();
