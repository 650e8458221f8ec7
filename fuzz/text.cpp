// Text drawing: the first bytes give font, place, colour and clip; the rest is text, drawn line by line.

#include "gfx/text_image.h"
#include "target.h"

#include <string>

namespace
{
/// The sizes of the game's fonts, with few slots, so that glyphs give way to each other.
struct Font {
    Font(int height, int width, int slots) : handle(CreateVerdana(height, width))
    {
        Require(handle != nullptr && text.TextImageCreate(handle, TEXT_GREY_LEVELS, slots));
    }
    /// There is no font: nothing is drawn.
    Font()
    {
        Require(!text.TextImageCreate(nullptr, TEXT_GREY_LEVELS, 1) &&
                !text.TextImageCreate(handle, TEXT_GREY_LEVELS, 0));
    }
    HFONT handle = nullptr;
    CTextImage text;
};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Font fonts[] = { { 18, 7, 16 }, { 15, 6, TEXT_GLYPH_SLOTS }, { 40, 0, 3 }, {} };
    static CImage target;
    if (target.width == 0)
        Require(target.Create(160, 50));
    Numbers input(data, size);
    CTextImage& text = fonts[input.Take8() % 4].text;
    const int x = static_cast<int16_t>(input.Take16());
    const int y = static_cast<int16_t>(input.Take16());
    const uint16_t colour = static_cast<uint16_t>(input.Take16());
    const std::string line(input.Rest(), input.Rest() + input.RestSize());
    CImage view;
    if (view.CreateView(target, x % 100, y % 30, 60, 40))
        text.TextDraw(view, x % 128, y % 64, colour, line.c_str());
    text.TextDraw(target, x, y, colour, line.c_str());
    Require(text.TextWidth(line.c_str()) >= 0);
    Require(text.count <= text.capacity);
    return 0;
}
