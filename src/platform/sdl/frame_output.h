#pragma once

#include "platform/sdl/kept_frame.h"

#include <SDL.h>
#include <memory>

/// A way of putting frames into a window: to the nearest whole factor sharp, from there smoothly, as large as fits, on
/// black. Goes before its window does.
class CFrameOutput
{
public:
    CFrameOutput() = default;
    virtual ~CFrameOutput() = default;
    CFrameOutput(const CFrameOutput&) = delete;
    CFrameOutput& operator=(const CFrameOutput&) = delete;

    /// Shows the frame; of one shown before, unless the window needs `all` of it anew, no more than has changed.
    /// False when this way does not work any more.
    virtual bool Show(const KeptFrame& frame, bool all) = 0;
};

/// The cheapest way for that window: the renderer's, or the surface's where the renderer would draw with the processor
/// anyway. The environment variable TERVALIS_PRESENT, `renderer` or `software`, decides by itself. Null, with the
/// reason in SDL_GetError, when there is no way.
std::unique_ptr<CFrameOutput> OpenFrameOutput(SDL_Window* window);

/// Draws with what SDL takes for the best renderer; null when there is none. It can be one on the processor.
std::unique_ptr<CFrameOutput> OpenRendererOutput(SDL_Window* window);

/// Scales by itself, into memory that the window system shows; null where that is not of 32 bits with 8 per channel.
std::unique_ptr<CFrameOutput> OpenSurfaceOutput(SDL_Window* window);
