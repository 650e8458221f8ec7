#pragma once

#include "platform/sdl/frame_output.h"
#include "platform/sdl/kept_frame.h"
#include "platform/types.h"

#include <SDL.h>
#include <memory>

/// The picture in the window: keeps the last RGB565 frame, so that it can be shown again whenever the window needs it.
class CFrameView
{
public:
    /// Until the window is about to be destroyed. False when it cannot be drawn into.
    bool Open(SDL_Window* target);
    /// A black frame of that size; the same size keeps the frame. False when there is no memory for it.
    bool SetFrameSize(SDL_Point newSize) { return frame.SetSize(newSize); }
    SDL_Point FrameSize() const { return frame.size; }
    /// Replaces part of the frame; `rowBytes` is from row to row of `pixels`. False when it does not lie within.
    bool Update(const SDL_Rect& area, const void* pixels, int rowBytes) { return frame.Update(area, pixels, rowBytes); }
    /// Whether something of the frame has changed since it was shown.
    bool HasChanges() const { return frame.HasChanges(); }
    /// Puts on the screen what has changed of the frame since it was shown.
    void ShowChanges() { Show(false); }
    /// Puts the whole frame on the screen, for a window that has lost it.
    void ShowAll() { Show(true); }
    /// The frame's pixel under a position in the window, in its own units, also beyond the frame's edges.
    POINT FramePosition(int x, int y) const;
    /// The middle of the frame's pixel, in the window's units.
    SDL_Point WindowPosition(POINT pixel) const;

private:
    /// How the frame lies in the window.
    struct Fit {
        SDL_Point units; ///< the window's size in its own units
        SDL_Point area;  ///< and in pixels
        SDL_Rect shown;  ///< the part of these with the frame
    };
    Fit FitNow() const;
    void Show(bool all);
    bool ShowOtherwise();

    SDL_Window* window = nullptr;
    KeptFrame frame;
    std::unique_ptr<CFrameOutput> output; ///< null when nothing can be shown
};
