// How a rule is applied to a row. For files that are compiled once per instruction set: each includes this after
// highway.h, once for every set, hence without a guard.
#include <cstddef>

HWY_BEFORE_NAMESPACE();
namespace
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

constexpr size_t ROW_GROUP = 4; ///< samples that rules may look at together; a vector has whole groups

/// Applies the rule from sample `first` on while there are enough samples for a vector; returns the next sample.
template <class Lanes, class Rule>
size_t ApplyVectors(Lanes lanes, const Rule& rule, size_t first, size_t count)
{
    // With less than a group in a vector, which can mean one lane, the samples' own form does the whole row.
    if constexpr (hn::MaxLanes(lanes) >= ROW_GROUP) {
        const size_t step = hn::Lanes(lanes);
        for (; first + step <= count; first += step)
            rule.Vector(lanes, first);
    }
    return first;
}

/// Applies the rule to samples `first` to `count` - 1 of a row, from the widest vectors down to single samples: sprites
/// are narrower than a vector. rule.Vector(lanes, i) does as many samples as there are lanes of T, rule.Sample(i) one.
template <class T, class Rule>
void ApplyToRow(const Rule& rule, size_t first, size_t count)
{
    size_t i = ApplyVectors(hn::ScalableTag<T>(), rule, first, count);
    i = ApplyVectors(hn::CappedTag<T, 16>(), rule, i, count);
    i = ApplyVectors(hn::CappedTag<T, 8>(), rule, i, count);
    i = ApplyVectors(hn::CappedTag<T, 4>(), rule, i, count);
    for (; i < count; ++i)
        rule.Sample(i);
}
}
}
HWY_AFTER_NAMESPACE();
