#pragma once

#include "game/pond.h"
#include "support/test_pictures.h"

#include <cstdint>

/// The keys of the games that tests play, in the order up, down, left, right.
constexpr uint32_t testKeys[2][4] = { { 38, 40, 37, 39 }, { 'W', 'S', 'A', 'D' } };

/// A game of one (0) or two (1) players without a window, from the first frame on, with stand-in pictures. Throws when
/// it cannot be set up.
class TestGame
{
public:
    TestGame(int players, uint32_t seed);

    /// One frame of play, as the game scene runs it; 0 = no key.
    void Frame(int key);

    TestPictures pictures;
    CPond pond;
};
