#include "platform/sdl/kept_frame.h"

#include "platform/posix/out_of_memory.h"
#include "platform/sdl/frame_fit.h"

#include <algorithm>
#include <cstring>

bool KeptFrame::SetSize(SDL_Point newSize)
{
    if (SameSize(newSize, size))
        return true;
    return OrOutOfMemory(false, [&] {
        const size_t rows = static_cast<size_t>(newSize.y);
        *this = { newSize, std::vector<uint16_t>(static_cast<size_t>(newSize.x) * rows),
                  std::vector<uint8_t>(rows, true) };
        return true;
    });
}

bool KeptFrame::Update(const SDL_Rect& area, const void* source, int rowBytes)
{
    if (area.x < 0 || area.y < 0 || area.x + area.w > size.x || area.y + area.h > size.y)
        return false;
    const size_t bytes = static_cast<size_t>(area.w) * sizeof(uint16_t);
    const uint8_t* from = static_cast<const uint8_t*>(source);
    for (int row = area.y; row < area.y + area.h; ++row, from += rowBytes) {
        uint16_t* to = pixels.data() + static_cast<ptrdiff_t>(row) * size.x + area.x;
        if (std::memcmp(to, from, bytes) == 0)
            continue;
        std::memcpy(to, from, bytes);
        changed[static_cast<size_t>(row)] = true;
    }
    return true;
}

bool KeptFrame::HasChanges() const
{
    return std::find(changed.begin(), changed.end(), true) != changed.end();
}
