#include "platform/posix/out_of_memory.h"
#include "platform/sdl/frame_fit.h"
#include "platform/sdl/frame_output.h"
#include "platform/sdl/frame_scaler.h"

namespace
{
bool IsUsable(const SDL_Surface* surface)
{
    return surface &&
           (surface->format->format == SDL_PIXELFORMAT_RGB888 || surface->format->format == SDL_PIXELFORMAT_ARGB8888);
}

/// The parts of a window's surface that are to be put on the screen: not too many, so that the last one takes in what
/// lies between it and further ones.
struct ChangedAreas {
    static constexpr size_t MOST = 16;

    SDL_Rect areas[MOST];
    size_t count = 0;

    void Add(const SDL_Rect& area)
    {
        if (count < MOST)
            areas[count++] = area;
        else
            SDL_UnionRect(&areas[MOST - 1], &area, &areas[MOST - 1]);
    }
};

class CSurfaceOutput final : public CFrameOutput
{
public:
    explicit CSurfaceOutput(SDL_Window* target) : window(target) {}

    bool Show(const KeptFrame& frame, bool all) override
    {
        // SDL makes a new one after the window's size has changed.
        SDL_Surface* const surface = SDL_GetWindowSurface(window);
        if (!IsUsable(surface))
            return false;
        const bool isNew = surface->userdata != this || !SameSize(scaler.FrameSize(), frame.size);
        if (isNew && !Prepare(surface, frame.size))
            return false;
        const ChangedAreas changed = Scale(frame, *surface, isNew);
        if (isNew || all)
            return SDL_UpdateWindowSurface(window) == 0;
        return changed.count == 0 ||
               SDL_UpdateWindowSurfaceRects(window, changed.areas, static_cast<int>(changed.count)) == 0;
    }

private:
    bool Prepare(SDL_Surface* surface, SDL_Point frameSize)
    {
        place = FitFrame(frameSize, { surface->w, surface->h });
        surface->userdata = this;
        SDL_FillRect(surface, nullptr, SDL_MapRGB(surface->format, 0, 0, 0));
        return OrOutOfMemory(false, [&] {
            scaler.SetSizes(frameSize, { place.w, place.h });
            return true;
        });
    }

    /// Puts what has changed of the frame, or all, into the surface.
    ChangedAreas Scale(const KeptFrame& frame, const SDL_Surface& surface, bool all)
    {
        ChangedAreas changed;
        const auto isWanted = [&](size_t row) { return all || scaler.ShowsAny(frame.changed.data(), row); };
        const size_t height = static_cast<size_t>(place.h);
        for (size_t row = 0; row < height; ++row) {
            const size_t begin = row;
            while (row < height && isWanted(row))
                ++row;
            if (row == begin)
                continue;
            const int y = place.y + static_cast<int>(begin);
            uint8_t* const target = static_cast<uint8_t*>(surface.pixels) + ptrdiff_t{ y } * surface.pitch;
            scaler.ScaleRows(frame.pixels.data(), { begin, row, target + place.x * 4, surface.pitch });
            changed.Add({ place.x, y, place.w, static_cast<int>(row - begin) });
        }
        return changed;
    }

    SDL_Window* const window;
    SDL_Rect place = {}; ///< of the frame on the surface
    CFrameScaler scaler;
};
}

std::unique_ptr<CFrameOutput> OpenSurfaceOutput(SDL_Window* window)
{
    return IsUsable(SDL_GetWindowSurface(window)) ? std::make_unique<CSurfaceOutput>(window) : nullptr;
}
