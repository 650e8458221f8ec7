#pragma once

#include "game/pond.h"

#include <cstdint>

/// A checksum of everything on which the further course of a game depends: pond, snakes, status bar, water, scenery
/// and random numbers. Pixels are no part of it, so new artwork does not change it.
uint64_t StateChecksum(const CPond& pond);
