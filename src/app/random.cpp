#include "app/random.h"

namespace
{
uint32_t state;
}

void SeedRandom(uint32_t seed)
{
    state = seed;
}

int Random()
{
    state = state * 214013 + 2531011; // linear congruential, modulo 2^32; the high bits are the random ones
    return static_cast<int>((state >> 16) & 0x7FFF);
}

uint32_t RandomState()
{
    return state;
}
