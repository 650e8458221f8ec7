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

void CFrameView::Close()
{
    *this = {};
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

POINT CFrameView::FramePosition(int x, int y) const
{
    SDL_Point units = {};
    SDL_Point area = {};
    SDL_GetWindowSize(window, &units.x, &units.y);
    SDL_GetWindowSizeInPixels(window, &area.x, &area.y);
    const SDL_Rect shown = FitFrame(frame.size, area);
    return { ScaleDown(ScaleDown(x, area.x, units.x) - shown.x, frame.size.x, shown.w),
             ScaleDown(ScaleDown(y, area.y, units.y) - shown.y, frame.size.y, shown.h) };
}
