#pragma once

#include <cstdint>

constexpr int KEY_BINDINGS = 8;
constexpr int RANKING_PLACES = 10;
constexpr int NAME_BYTES = 256;

/// Up, down, left, right of player 1, then of player 2: the arrows, and W, S, A, D.
constexpr uint32_t DEFAULT_KEYS[KEY_BINDINGS] = { 38, 40, 37, 39, 87, 83, 65, 68 };
