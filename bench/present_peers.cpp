#include "present_peers.h"

#include "platform/sdl/frame_fit.h"

#include <libyuv.h>
#include <memory>
#include <pixman.h>
#include <vector>

namespace
{
/// The frame, and the picture's memory.
struct Pictures {
    CImage frame;
    std::shared_ptr<uint8_t> target;
};

std::shared_ptr<Pictures> MakePictures(SDL_Point picture)
{
    const auto pictures = std::make_shared<Pictures>();
    MakeTestImage(pictures->frame, FRAME_SIZE.x, FRAME_SIZE.y, 1);
    pictures->target = MakeBytes(static_cast<size_t>(picture.x) * static_cast<size_t>(picture.y) * 4);
    return pictures;
}

bool IsWholeFactor(SDL_Point picture)
{
    return picture.x % FRAME_SIZE.x == 0 && picture.y % FRAME_SIZE.y == 0;
}

/// SDL's renderer on memory, drawing into a texture of a whole factor and from there to the picture.
class CSdlScaler
{
public:
    explicit CSdlScaler(SDL_Point picture)
    {
        const int factor = NearestWholeFactor(FRAME_SIZE.x, picture.x);
        target = SDL_CreateRGBSurfaceWithFormat(0, picture.x, picture.y, 32, SDL_PIXELFORMAT_RGB888);
        renderer = SDL_CreateSoftwareRenderer(target);
        frame = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGB565, SDL_TEXTUREACCESS_STREAMING, FRAME_SIZE.x,
                                  FRAME_SIZE.y);
        if (IsWholeFactor(picture))
            return;
        magnified = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_TARGET,
                                      FRAME_SIZE.x * factor, FRAME_SIZE.y * factor);
        SDL_SetTextureScaleMode(magnified, SDL_ScaleModeLinear);
    }
    ~CSdlScaler()
    {
        SDL_DestroyRenderer(renderer);
        SDL_FreeSurface(target);
    }
    CSdlScaler(const CSdlScaler&) = delete;
    CSdlScaler& operator=(const CSdlScaler&) = delete;

    void Scale(const CImage& image)
    {
        SDL_UpdateTexture(frame, nullptr, image.pixels, image.pitch);
        if (magnified) {
            SDL_SetRenderTarget(renderer, magnified);
            SDL_RenderCopy(renderer, frame, nullptr, nullptr);
            SDL_SetRenderTarget(renderer, nullptr);
        }
        SDL_RenderCopy(renderer, magnified ? magnified : frame, nullptr, nullptr);
        SDL_RenderFlush(renderer);
    }

private:
    SDL_Surface* target = nullptr;
    SDL_Renderer* renderer = nullptr;
    SDL_Texture* frame = nullptr;
    SDL_Texture* magnified = nullptr; ///< null at whole factors
};
}

Work ScaleWithSdl(SDL_Point picture)
{
    return [pictures = MakePictures({}), scaler = std::make_shared<CSdlScaler>(picture)] {
        scaler->Scale(pictures->frame);
    };
}

Work ScaleWithPixman(SDL_Point picture)
{
    const auto own = [](pixman_image_t* image) { return std::shared_ptr<pixman_image_t>(image, pixman_image_unref); };
    const auto pictures = MakePictures(picture);
    const CImage& frame = pictures->frame;
    const auto source = own(pixman_image_create_bits(PIXMAN_r5g6b5, frame.width, frame.height,
                                                     reinterpret_cast<uint32_t*>(frame.pixels), frame.pitch));
    const auto target = own(pixman_image_create_bits(
        PIXMAN_x8r8g8b8, picture.x, picture.y, reinterpret_cast<uint32_t*>(pictures->target.get()), picture.x * 4));
    pixman_transform_t toFrame;
    pixman_transform_init_scale(&toFrame, pixman_double_to_fixed(static_cast<double>(FRAME_SIZE.x) / picture.x),
                                pixman_double_to_fixed(static_cast<double>(FRAME_SIZE.y) / picture.y));
    pixman_image_set_transform(source.get(), &toFrame);
    pixman_image_set_filter(source.get(), IsWholeFactor(picture) ? PIXMAN_FILTER_NEAREST : PIXMAN_FILTER_BILINEAR,
                            nullptr, 0);
    pixman_image_set_repeat(source.get(), PIXMAN_REPEAT_PAD);
    return [pictures, source, target, picture] {
        pixman_image_composite32(PIXMAN_OP_SRC, source.get(), nullptr, target.get(), 0, 0, 0, 0, 0, 0, picture.x,
                                 picture.y);
    };
}

Work ScaleWithLibyuv(SDL_Point picture)
{
    const auto pictures = MakePictures(picture);
    const auto wide = std::make_shared<std::vector<uint8_t>>(FRAME_SIZE.x * FRAME_SIZE.y * 4);
    return [pictures, wide, picture] {
        const CImage& frame = pictures->frame;
        libyuv::RGB565ToARGB(reinterpret_cast<const uint8_t*>(frame.pixels), frame.pitch, wide->data(),
                             FRAME_SIZE.x * 4, FRAME_SIZE.x, FRAME_SIZE.y);
        libyuv::ARGBScale(wide->data(), FRAME_SIZE.x * 4, FRAME_SIZE.x, FRAME_SIZE.y, pictures->target.get(),
                          picture.x * 4, picture.x, picture.y,
                          IsWholeFactor(picture) ? libyuv::kFilterNone : libyuv::kFilterBilinear);
    };
}
