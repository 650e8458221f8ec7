#include "platform/sdl/frame_output.h"

#include "platform/web/page.h"

#include <cstdint>

namespace
{
/// The pixel in bytes of red, green, blue and opacity.
uint32_t Widen(uint32_t pixel)
{
    const uint32_t red = pixel >> 11;
    const uint32_t green = pixel >> 5 & 0x3F;
    const uint32_t blue = pixel & 0x1F;
    return 0xFF000000 | (blue << 3 | blue >> 2) << 16 | (green << 2 | green >> 4) << 8 | (red << 3 | red >> 2);
}

/// Hands each frame to the page, which scales it with its canvas.
class CCanvasOutput final : public CFrameOutput
{
public:
    bool Show(const KeptFrame& frame, bool) override
    {
        wide.resize(frame.pixels.size());
        for (size_t i = 0; i < wide.size(); ++i)
            wide[i] = Widen(frame.pixels[i]);
        PageShowFrame(wide.data(), frame.size.x, frame.size.y);
        return true;
    }

private:
    std::vector<uint32_t> wide;
};
}

std::unique_ptr<CFrameOutput> OpenFrameOutput(SDL_Window*)
{
    return std::make_unique<CCanvasOutput>();
}

std::unique_ptr<CFrameOutput> OpenRendererOutput(SDL_Window* window)
{
    return OpenFrameOutput(window);
}
