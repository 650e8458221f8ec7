#include "platform/sdl/frame_view.h"

#include "platform/sdl/frame_fit.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace
{
/// Rounds down, so that positions left of the frame stay negative.
int ScaleDown(int distance, int frameLength, int shownLength)
{
    return static_cast<int>(std::floor(static_cast<double>(distance) * frameLength / shownLength));
}
}

bool CFrameView::Open(SDL_Window* target)
{
    window = target;
    output = OpenFrameOutput(window);
    return output != nullptr;
}

void CFrameView::Show(bool all)
{
    if (!output || frame.pixels.empty())
        return;
    if (!output->Show(frame, all) && !ShowOtherwise()) {
        output = nullptr;
        std::fprintf(stderr, "%s: cannot show frames any more: %s\n", SDL_GetWindowTitle(window), SDL_GetError());
    }
    std::fill(std::begin(frame.changed), std::end(frame.changed), false);
}

/// A renderer can be had even where there is no surface any more, and in place of one that was lost.
bool CFrameView::ShowOtherwise()
{
    output = nullptr;
    output = OpenRendererOutput(window);
    return output && output->Show(frame, true);
}

CFrameView::Fit CFrameView::FitNow() const
{
    Fit fit = {};
    SDL_GetWindowSize(window, &fit.units.x, &fit.units.y);
    SDL_GetWindowSizeInPixels(window, &fit.area.x, &fit.area.y);
    fit.shown = FitFrame(frame.size, fit.area);
    return fit;
}

POINT CFrameView::FramePosition(int x, int y) const
{
    const auto [units, area, shown] = FitNow();
    return { ScaleDown(ScaleDown(x, area.x, units.x) - shown.x, frame.size.x, shown.w),
             ScaleDown(ScaleDown(y, area.y, units.y) - shown.y, frame.size.y, shown.h) };
}

SDL_Point CFrameView::WindowPosition(POINT pixel) const
{
    const auto [units, area, shown] = FitNow();
    const int x = 2 * static_cast<int>(pixel.x) + 1; // in halves of a pixel
    const int y = 2 * static_cast<int>(pixel.y) + 1;
    return { ScaleDown(shown.x + ScaleDown(x, shown.w, 2 * frame.size.x), units.x, area.x),
             ScaleDown(shown.y + ScaleDown(y, shown.h, 2 * frame.size.y), units.y, area.y) };
}
