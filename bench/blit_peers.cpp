#include "blit_peers.h"

#include <memory>

namespace
{
using Surface = std::shared_ptr<SDL_Surface>;
using PixmanImage = std::shared_ptr<pixman_image_t>;

constexpr pixman_color_t HALF = { 0x8000, 0x8000, 0x8000, 0x8000 };

Surface MakeSurface(int width, int height, Uint32 format)
{
    return { SDL_CreateRGBSurfaceWithFormat(0, width, height, SDL_BITSPERPIXEL(format), format), SDL_FreeSurface };
}

/// The picture in that format; its alpha plane becomes the alpha of a format that has one.
Surface MakeSurfaceOf(const CImage& image, Uint32 format)
{
    const Surface surface = MakeSurface(image.width, image.height, format);
    for (int y = 0; y < image.height; ++y) {
        Uint8* row = static_cast<Uint8*>(surface->pixels) + y * surface->pitch;
        for (int x = 0; x < image.width; ++x) {
            const int pixel = image.Row(y)[x];
            if (format == SDL_PIXELFORMAT_RGB565)
                reinterpret_cast<Uint16*>(row)[x] = static_cast<Uint16>(pixel);
            else
                reinterpret_cast<Uint32*>(row)[x] = SDL_MapRGBA(
                    surface->format, static_cast<Uint8>(pixel >> 11 << 3), static_cast<Uint8>(pixel >> 5 << 2),
                    static_cast<Uint8>(pixel << 3), static_cast<Uint8>(image.AlphaRow(y)[x] * 255 / 31));
        }
    }
    return surface;
}

PixmanImage Own(pixman_image_t* image)
{
    return { image, [](pixman_image_t* unused) {
                if (unused)
                    pixman_image_unref(unused);
            } };
}

PixmanImage MakePixmanImage(PixmanInput input, pixman_format_code_t format, const CImage& image)
{
    if (input == PixmanInput::NONE)
        return Own(nullptr);
    if (input == PixmanInput::SOLID)
        return Own(pixman_image_create_solid_fill(&HALF));
    const bool isAlpha = format == PIXMAN_a8;
    void* plane = isAlpha ? static_cast<void*>(image.alpha) : image.pixels;
    return Own(pixman_image_create_bits(format, image.width, image.height, static_cast<uint32_t*>(plane),
                                        isAlpha ? image.pitch / 2 : image.pitch));
}
}

Work SdlWork(const SdlPeer& peer, int width, int height)
{
    CImage image;
    MakeTestImage(image, width, height, 1);
    const Surface source = MakeSurfaceOf(image, peer.sourceFormat);
    const Surface target = MakeSurface(width, height, peer.targetFormat);
    SDL_SetSurfaceBlendMode(source.get(), peer.blend);
    SDL_SetColorKey(source.get(), peer.hasKey ? SDL_TRUE : SDL_FALSE, COLOR_KEY);
    SDL_SetSurfaceAlphaMod(source.get(), peer.alphaMod);
    SDL_SetSurfaceColorMod(source.get(), peer.colorMod, peer.colorMod, peer.colorMod);
    return [source, target] { SDL_BlitSurface(source.get(), nullptr, target.get(), nullptr); };
}

Work PixmanWork(const PixmanPeer& peer, int width, int height)
{
    const auto sourcePicture = std::make_shared<CImage>();
    const auto targetPicture = std::make_shared<CImage>();
    MakeTestImage(*sourcePicture, width, height, 1);
    MakeTestImage(*targetPicture, width, height, 2);
    const PixmanImage source = MakePixmanImage(peer.source, PIXMAN_r5g6b5, *sourcePicture);
    const PixmanImage mask = MakePixmanImage(peer.mask, PIXMAN_a8, *sourcePicture);
    const PixmanImage target = MakePixmanImage(PixmanInput::PICTURE, peer.targetFormat, *targetPicture);
    return [operation = peer.operation, sourcePicture, targetPicture, source, mask, target] {
        pixman_image_composite32(operation, source.get(), mask.get(), target.get(), 0, 0, 0, 0, 0, 0,
                                 targetPicture->width, targetPicture->height);
    };
}
