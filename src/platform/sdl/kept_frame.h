#pragma once

#include <SDL.h>
#include <cstdint>
#include <vector>

/// The game's last frame, RGB565 row by row without gaps, and which of its rows have changed since they were shown.
struct KeptFrame {
    SDL_Point size = {};
    std::vector<uint16_t> pixels;
    std::vector<uint8_t> changed; ///< for each row whether it has

    /// A black frame of that size, all of it changed; the same size keeps the frame. False when there is no memory.
    bool SetSize(SDL_Point newSize);
    /// Replaces part of the frame; `rowBytes` is from row to row of `source`. False when it does not lie within.
    bool Update(const SDL_Rect& area, const void* source, int rowBytes);
    bool HasChanges() const;
    const uint16_t* Row(int row) const { return pixels.data() + static_cast<ptrdiff_t>(row) * size.x; }
};
