#include "platform/sdl/stick.h"

#include <cstdlib>

namespace
{
constexpr int PUSHED = 16000; ///< about half the way to the edge
constexpr int LET_GO = 10000; ///< where one that was pushed counts as at rest

/// Another way must be that much stronger than the held one: the boundary lies 6 degrees off the diagonal.
constexpr int STRONGER_BY = 5;
constexpr int STRONGER_OF = 4;

int Strength(int x, int y, Way way)
{
    switch (way) {
    case Way::UP:
        return -y;
    case Way::DOWN:
        return y;
    case Way::LEFT:
        return -x;
    case Way::RIGHT:
        return x;
    case Way::NONE:
        break;
    }
    return 0;
}

Way StrongestWay(int x, int y)
{
    if (std::abs(x) > std::abs(y))
        return x < 0 ? Way::LEFT : Way::RIGHT;
    return y < 0 ? Way::UP : Way::DOWN;
}
}

Way StickWay(int x, int y, Way held)
{
    const Way strongest = StrongestWay(x, y);
    const int strength = Strength(x, y, strongest);
    const int heldStrength = Strength(x, y, held);
    if (heldStrength >= LET_GO && strength * STRONGER_OF <= heldStrength * STRONGER_BY)
        return held;
    return strength >= PUSHED ? strongest : Way::NONE;
}
