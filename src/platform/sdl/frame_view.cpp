#include "platform/sdl/frame_view.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace
{
void DestroyTexture(SDL_Texture*& texture)
{
    if (texture)
        SDL_DestroyTexture(texture);
    texture = nullptr;
}

/// Rounds down, so that positions left of the frame stay negative.
int ScaleDown(int distance, int frameLength, int shownLength)
{
    return static_cast<int>(std::floor(static_cast<double>(distance) * frameLength / shownLength));
}
}

SDL_Rect FitFrame(SDL_Point frame, SDL_Point area)
{
    const double scale = std::min(static_cast<double>(area.x) / frame.x, static_cast<double>(area.y) / frame.y);
    const int width = std::max(1, static_cast<int>(std::lround(frame.x * scale)));
    const int height = std::max(1, static_cast<int>(std::lround(frame.y * scale)));
    return { (area.x - width) / 2, (area.y - height) / 2, width, height };
}

int NearestWholeFactor(int frameWidth, int shownWidth)
{
    // Of two equally near ones the smaller: it is as sharp and costs less.
    return std::max(1, static_cast<int>(std::ceil(static_cast<double>(shownWidth) / frameWidth - 0.5)));
}

bool CFrameView::Open(SDL_Window* target)
{
    window = target;
    renderer = SDL_CreateRenderer(window, -1, 0); // unsynchronised: the game has a clock of its own
    return renderer != nullptr;
}

void CFrameView::Close()
{
    DestroyTexture(frame);
    DestroyTexture(magnified);
    if (renderer)
        SDL_DestroyRenderer(renderer);
    *this = {};
}

bool CFrameView::SetFrameSize(SDL_Point newSize)
{
    if (frame && newSize.x == size.x && newSize.y == size.y)
        return true;
    DestroyTexture(frame);
    DestroyTexture(magnified);
    size = newSize;
    frame = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGB565, SDL_TEXTUREACCESS_STREAMING, size.x, size.y);
    if (!frame)
        return false;
    SDL_SetTextureScaleMode(frame, SDL_ScaleModeNearest);
    void* pixels = nullptr;
    int rowBytes = 0;
    if (SDL_LockTexture(frame, nullptr, &pixels, &rowBytes) != 0)
        return false;
    std::memset(pixels, 0, static_cast<size_t>(rowBytes) * static_cast<size_t>(size.y)); // black
    SDL_UnlockTexture(frame);
    return true;
}

bool CFrameView::Update(const SDL_Rect& area, const void* pixels, int rowBytes)
{
    return frame && SDL_UpdateTexture(frame, &area, pixels, rowBytes) == 0;
}

SDL_Texture* CFrameView::Magnify(int factor)
{
    if (factor != magnification)
        DestroyTexture(magnified);
    if (!magnified) {
        magnified = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_TARGET, size.x * factor,
                                      size.y * factor);
        magnification = factor;
    }
    if (!magnified || SDL_SetRenderTarget(renderer, magnified) != 0)
        return frame; // a renderer that cannot draw into textures shows the frame unsmoothed
    SDL_SetTextureScaleMode(magnified, SDL_ScaleModeLinear);
    SDL_RenderCopy(renderer, frame, nullptr, nullptr);
    SDL_SetRenderTarget(renderer, nullptr);
    return magnified;
}

void CFrameView::Show()
{
    SDL_Point area = {};
    if (!frame || SDL_GetRendererOutputSize(renderer, &area.x, &area.y) != 0)
        return;
    const SDL_Rect target = FitFrame(size, area);
    const int factor = NearestWholeFactor(size.x, target.w);
    const bool exact = target.w == size.x * factor && target.h == size.y * factor;
    SDL_Texture* source = exact ? frame : Magnify(factor);
    SDL_SetRenderDrawColor(renderer, 0, 0, 0, SDL_ALPHA_OPAQUE);
    SDL_RenderClear(renderer);
    SDL_RenderCopy(renderer, source, nullptr, &target);
    SDL_RenderPresent(renderer);
}

POINT CFrameView::FramePosition(int x, int y) const
{
    SDL_Point area = {};
    SDL_GetWindowSize(window, &area.x, &area.y);
    const SDL_Rect shown = FitFrame(size, area);
    return { ScaleDown(x - shown.x, size.x, shown.w), ScaleDown(y - shown.y, size.y, shown.h) };
}
