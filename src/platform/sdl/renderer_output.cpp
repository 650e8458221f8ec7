#include "platform/sdl/frame_fit.h"
#include "platform/sdl/frame_output.h"

#include <new>

namespace
{
void DestroyTexture(SDL_Texture*& texture)
{
    if (texture)
        SDL_DestroyTexture(texture);
    texture = nullptr;
}

class CRendererOutput final : public CFrameOutput
{
public:
    explicit CRendererOutput(SDL_Renderer* ownRenderer) : renderer(ownRenderer) {}
    ~CRendererOutput() override
    {
        DestroyTexture(texture);
        DestroyTexture(magnified);
        SDL_DestroyRenderer(renderer);
    }

    bool Show(const KeptFrame& frame, bool) override
    {
        SDL_Point area = {};
        if (SDL_GetRendererOutputSize(renderer, &area.x, &area.y) != 0 || !Load(frame))
            return false;
        const SDL_Rect target = FitFrame(size, area);
        const int factor = NearestWholeFactor(size.x, target.w);
        const bool exact = target.w == size.x * factor && target.h == size.y * factor;
        SDL_Texture* source = exact ? texture : Magnify(factor);
        SDL_SetRenderDrawColor(renderer, 0, 0, 0, SDL_ALPHA_OPAQUE);
        SDL_RenderClear(renderer);
        SDL_RenderCopy(renderer, source, nullptr, &target);
        SDL_RenderPresent(renderer);
        return true;
    }

private:
    bool Load(const KeptFrame& frame)
    {
        if (!texture || !SameSize(size, frame.size)) {
            DestroyTexture(texture);
            DestroyTexture(magnified);
            size = frame.size;
            texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGB565, SDL_TEXTUREACCESS_STREAMING, size.x, size.y);
            SDL_SetTextureScaleMode(texture, SDL_ScaleModeNearest);
        }
        return texture && SDL_UpdateTexture(texture, nullptr, frame.pixels.data(), size.x * 2) == 0;
    }

    SDL_Texture* Magnify(int factor)
    {
        if (factor != magnification)
            DestroyTexture(magnified);
        if (!magnified) {
            magnified = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_TARGET, size.x * factor,
                                          size.y * factor);
            magnification = factor;
        }
        if (!magnified || SDL_SetRenderTarget(renderer, magnified) != 0)
            return texture; // a renderer that cannot draw into textures shows the frame unsmoothed
        SDL_SetTextureScaleMode(magnified, SDL_ScaleModeLinear);
        SDL_RenderCopy(renderer, texture, nullptr, nullptr);
        SDL_SetRenderTarget(renderer, nullptr);
        return magnified;
    }

    SDL_Renderer* const renderer;
    SDL_Texture* texture = nullptr;   ///< the frame
    SDL_Texture* magnified = nullptr; ///< the frame by a whole factor; made when first needed
    int magnification = 0;
    SDL_Point size = {};
};
}

std::unique_ptr<CFrameOutput> OpenRendererOutput(SDL_Window* window)
{
    SDL_Renderer* const renderer = SDL_CreateRenderer(window, -1, 0); // unsynchronised: the game has a clock of its own
    if (!renderer)
        return nullptr;
    std::unique_ptr<CFrameOutput> output(new (std::nothrow) CRendererOutput(renderer));
    if (!output)
        SDL_DestroyRenderer(renderer);
    return output;
}
