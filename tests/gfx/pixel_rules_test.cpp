#include "gfx/pixel_rules.h"

#include <gtest/gtest.h>

namespace
{
struct RuleCase {
    const char* reason;
    uint16_t actual;
    uint16_t expected;
};

constexpr RuleCase ruleCases[] = {
    { "green saturates and carries one into red", AddPixel(0x07E0, 0x0020), 0x0FE0 },
    { "blue saturates and carries one into green", AddPixel(0x001F, 0x0001), 0x003F },
    { "black subtracts nothing", SubPixel(0x0000, 0x1234), 0x1234 },
    { "green floors and borrows one from red", SubPixel(0x0020, 0x0800), 0x0000 },
    { "blue floors and borrows one from green", SubPixel(0x0001, 0x0040), 0x0020 },
    { "alpha 16 is halfway", AlphaPixel(0xFFFF, 0x0000, 16), 0x7BEF },
    { "alpha 31 keeps 1/32 of a brighter target", AlphaPixel(0x0000, 0xFFFF, 31), 0x0820 },
    { "a falling channel is rounded down", AlphaPixel(0x0000, 0x001F, 31), 0x0000 },
    { "opacity 1/32 leaves nothing of alpha 31", AlphaOpacityPixel(0xFFFF, 0x1234, 31, 1), 0x1234 },
    { "the key stays transparent at every weight", OpacityColorKeyPixel(0xFFFF, 0xABCD, 0), 0xABCD },
    { "almost the key is drawn", ColorKeyPixel(0xFFDF, 0x1234), 0xFFDF },
    { "half coverage rounds down, but for what green carries into red", GlyphPixel(0xFFFF, 0x0000, 8), 0x83EF },
};
}

TEST(PixelRules, GiveTheHandWorkedValues)
{
    for (const RuleCase& rule : ruleCases)
        EXPECT_EQ(rule.actual, rule.expected) << rule.reason;
}
