#include "platform/sdl/pad_pointer.h"

#include <algorithm>
#include <limits>

namespace
{
constexpr LONG UNREACHABLE = std::numeric_limits<LONG>::max();
/// A step aside counts as many ahead: rows and columns come before what is near but askew.
constexpr LONG ASIDE = 6;

/// Between two stretches, 0 where they overlap.
LONG Gap(LONG from, LONG to, LONG otherFrom, LONG otherTo)
{
    return std::max({ LONG{ 0 }, otherFrom - to, from - otherTo });
}

LONG Cost(LONG ahead, LONG aside)
{
    return ahead < 0 ? UNREACHABLE : ahead + ASIDE * aside;
}

LONG CostOfWay(const RECT& from, const RECT& to, Way way)
{
    const LONG asideX = Gap(from.left, from.right, to.left, to.right);
    const LONG asideY = Gap(from.top, from.bottom, to.top, to.bottom);
    switch (way) {
    case Way::UP:
        return Cost(from.top - to.bottom, asideX);
    case Way::DOWN:
        return Cost(to.top - from.bottom, asideX);
    case Way::LEFT:
        return Cost(from.left - to.right, asideY);
    case Way::RIGHT:
        return Cost(to.left - from.right, asideY);
    case Way::NONE:
        break;
    }
    return asideX + asideY;
}
}

const RECT* BoxAt(std::span<const RECT> boxes, POINT pointer)
{
    const auto isUnder = [pointer](const RECT& box) {
        return pointer.x >= box.left && pointer.x <= box.right && pointer.y >= box.top && pointer.y <= box.bottom;
    };
    const auto box = std::find_if(boxes.begin(), boxes.end(), isUnder);
    return box == boxes.end() ? nullptr : &*box;
}

const RECT* NextBox(std::span<const RECT> boxes, POINT pointer, Way way)
{
    const RECT* const start = BoxAt(boxes, pointer);
    const RECT from = start ? *start : RECT{ pointer.x, pointer.y, pointer.x, pointer.y };
    const RECT* next = nullptr;
    LONG least = UNREACHABLE;
    for (const RECT& box : boxes) {
        const LONG cost = &box == start ? UNREACHABLE : CostOfWay(from, box, start ? way : Way::NONE);
        if (cost >= least)
            continue;
        least = cost;
        next = &box;
    }
    return next;
}
