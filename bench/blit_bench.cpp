// Every routine at several sizes, against memcpy of as many bytes as it reads and writes, its own pixel-by-pixel form
// and the nearest routine of other libraries. Names are ROUTINE/SIZE/WHO.
#include "blit_peers.h"

#include "gfx/display.h"
#include "gfx/image.h"

#include <memory>
#include <string>

namespace
{
struct Size {
    int width;
    int height;
};
/// One pixel shows what a call costs by itself.
constexpr Size sizes[] = { { 1, 1 }, { 16, 16 }, { 32, 32 }, { 480, 480 }, { 640, 480 } };

using MakeWork = Work (*)(Size size);

struct Pictures {
    CImage source;
    CImage target;
};

std::shared_ptr<Pictures> MakePictures(Size size)
{
    const auto pictures = std::make_shared<Pictures>();
    MakeTestImage(pictures->source, size.width, size.height, 1);
    MakeTestImage(pictures->target, size.width, size.height, 2);
    return pictures;
}

template <BlitRoutine ROUTINE>
Work Draw(Size size)
{
    const auto pictures = MakePictures(size);
    pictures->source.blit = ROUTINE;
    return [pictures] { pictures->source.Draw(pictures->target, 0, 0); };
}

Work DrawGlyph(Size size)
{
    const auto pictures = MakePictures(size);
    for (int i = 0; i < pictures->source.pitch / 2 * size.height; ++i)
        pictures->source.alpha[i] %= 17;
    const GlyphView glyph = { 0, 0, size.width, size.height, 0, pictures->source.alpha, 0x1234 };
    return [pictures, glyph] { BlitGlyphSmooth(pictures->target, glyph); };
}

template <RowConverter CONVERT>
Work Convert(Size size)
{
    const auto pictures = MakePictures(size);
    return [pictures] { CONVERT(pictures->source, pictures->target.pixels, 0); };
}

struct RoutineCase {
    const char* name;
    double bytesPerPixel; ///< read and written
    MakeWork work;
    SdlPeer sdl;
    PixmanPeer pixman;
};

constexpr Uint32 RGB565 = SDL_PIXELFORMAT_RGB565;
constexpr Uint32 ARGB = SDL_PIXELFORMAT_ARGB8888;
constexpr PixmanInput PICTURE = PixmanInput::PICTURE;
constexpr PixmanInput SOLID = PixmanInput::SOLID;

const RoutineCase routines[] = {
    { "Copy", 4, Draw<BlitCopy>, { RGB565 }, { PICTURE } },
    { "ColorKey", 6, Draw<BlitColorKey>, { .sourceFormat = RGB565, .hasKey = true }, {} },
    { "Add", 6, Draw<BlitAdd>, { RGB565, SDL_BLENDMODE_ADD }, { PICTURE, PIXMAN_OP_ADD } },
    { "Sub", 6, Draw<BlitSub>, {}, {} },
    { "Alpha", 7, Draw<BlitAlpha>, { ARGB, SDL_BLENDMODE_BLEND }, { PICTURE, PIXMAN_OP_OVER, PICTURE } },
    { "AlphaOpacity", 7, Draw<BlitAlphaOpacity>, { ARGB, SDL_BLENDMODE_BLEND, false, 133 }, {} },
    { "OpacityColorKey",
      6,
      Draw<BlitOpacityColorKey>,
      { RGB565, SDL_BLENDMODE_BLEND, true, 133 },
      { PICTURE, PIXMAN_OP_OVER, SOLID } },
    { "FadeToBlack",
      4,
      Draw<BlitFadeToBlack>,
      { .sourceFormat = RGB565, .colorMod = 133 },
      { PICTURE, PIXMAN_OP_SRC, SOLID } },
    { "GlyphSmooth", 5, DrawGlyph, {}, { SOLID, PIXMAN_OP_OVER, PICTURE } },
    { "ConvertCopy", 4, Convert<ConvertRowsCopy>, { RGB565 }, { PICTURE } },
    { "Convert555",
      4,
      Convert<ConvertRows555>,
      { .sourceFormat = RGB565, .targetFormat = SDL_PIXELFORMAT_XRGB1555 },
      { .source = PICTURE, .targetFormat = PIXMAN_x1r5g5b5 } },
};

void AddRoutine(const RoutineCase& routine, Size size)
{
    const auto [width, height] = size;
    const std::string name = std::string(routine.name) + "/" + std::to_string(width) + "x" + std::to_string(height);
    const size_t copied = static_cast<size_t>(routine.bytesPerPixel / 2 * width * height);
    AddBenchmark(name + "/ours", [&routine, size] { return routine.work(size); });
    AddBenchmark(name + "/memcpy", [copied] { return CopyBytes(copied); });
    AddPlainBenchmark(name + "/scalar", [&routine, size] { return routine.work(size); });
    if (routine.sdl.Exists())
        AddBenchmark(name + "/SDL2", [&routine, size] { return SdlWork(routine.sdl, size.width, size.height); });
    if (routine.pixman.Exists())
        AddBenchmark(name + "/pixman",
                     [&routine, size] { return PixmanWork(routine.pixman, size.width, size.height); });
}
}

int main(int argc, char** argv)
{
    for (const RoutineCase& routine : routines)
        for (const Size size : sizes)
            AddRoutine(routine, size);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
