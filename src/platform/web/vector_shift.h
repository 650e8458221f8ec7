#pragma once

// Included before every file of the game. A shift of all lanes by a count that is fixed before the loop would become
// one shift for each lane, for the compiler (clang 14) no longer sees there that the counts are the same: it makes one
// instruction of it only where the count seems to be new.
#include <wasm_simd128.h>

inline v128_t ShiftLanesRight(v128_t lanes, uint32_t count)
{
    asm volatile("" : "+r"(count));
    return wasm_i16x8_shr(lanes, count);
}
#define wasm_i16x8_shr ShiftLanesRight // as Highway calls it
