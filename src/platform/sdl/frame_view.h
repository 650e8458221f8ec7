#pragma once

#include "platform/types.h"

#include <SDL.h>

/// Where a frame lies in an area (pixels): as large as fits with its shape kept, in the middle.
SDL_Rect FitFrame(SDL_Point frame, SDL_Point area);

/// The whole factor nearest to the one by which a frame of that width is shown, at least 1.
int NearestWholeFactor(int frameWidth, int shownWidth);

/// The picture in the window: keeps the last RGB565 frame, so that it can be shown again whenever the window needs it.
class CFrameView
{
public:
    /// False when the window cannot be drawn into.
    bool Open(SDL_Window* target);
    /// Before the window is destroyed.
    void Close();
    /// A black frame of that size; the same size keeps the frame. False when there is no memory for it.
    bool SetFrameSize(SDL_Point newSize);
    SDL_Point FrameSize() const { return size; }
    /// Replaces part of the frame, which must lie within it; `rowBytes` is from row to row of `pixels`.
    bool Update(const SDL_Rect& area, const void* pixels, int rowBytes);
    /// Puts the frame on the screen: to the nearest whole factor sharp, and from there smoothly.
    void Show();
    /// The frame's pixel under a position in the window, also beyond the frame's edges.
    POINT FramePosition(int x, int y) const;

private:
    SDL_Texture* Magnify(int factor);

    SDL_Window* window = nullptr;
    SDL_Renderer* renderer = nullptr;
    SDL_Texture* frame = nullptr;
    SDL_Texture* magnified = nullptr; ///< the frame by a whole factor; made when first needed
    int magnification = 0;
    SDL_Point size = {};
};
