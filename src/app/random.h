#pragma once

#include <cstdint>

/// The program's one random generator. Seed and keys together fix a whole game, so nothing that may differ
/// between two runs (sound, images, the platform) draws from it.
void SeedRandom(uint32_t seed);

/// The next number, 0 to 32767; callers take it modulo their range.
int Random();

/// The generator's state, for comparing recorded games.
uint32_t RandomState();
