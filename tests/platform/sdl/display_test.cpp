#include "gfx/display.h"
#include "gfx/image.h"
#include "platform/gdi.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/window_fixture.h"

#include <algorithm>

namespace
{
constexpr uint16_t RED = 0xF800;
constexpr uint16_t GREEN = 0x07E0;
constexpr uint16_t BLUE = 0x001F;

class DisplayTest : public WindowFixture
{
protected:
    /// What the window is told of the mouse there.
    LPARAM Mapped(int x, int y)
    {
        PushMotion(x, y);
        RunMessages();
        return received.back().lParam;
    }
    /// As 0xRRGGBB, each channel in the five bits that every conversion keeps.
    static uint32_t ScreenPixel(int x, int y)
    {
        const SDL_Rect place = { x, y, 1, 1 };
        uint32_t pixel = 0;
        SDL_RenderReadPixels(SDL_GetRenderer(nativeWindow.handle), &place, SDL_PIXELFORMAT_ARGB8888, &pixel, 4);
        return pixel & 0xF8F8F8;
    }
};

TEST(FrameView, ShowsTheFrameAsLargeAsItFits)
{
    const std::pair<SDL_Point, SDL_Rect> cases[] = {
        { { 1280, 1024 }, { 0, 32, 1280, 960 } },   // bars above and below
        { { 1920, 1080 }, { 240, 0, 1440, 1080 } }, // bars left and right
        { { 320, 200 }, { 26, 0, 267, 200 } },      // smaller than the frame
        { { 1, 1 }, { 0, 0, 1, 1 } },
    };
    for (const auto& [area, expected] : cases) {
        const SDL_Rect shown = FitFrame({ 640, 480 }, area);
        EXPECT_TRUE(SDL_RectEquals(&shown, &expected)) << area.x;
    }
}

TEST_F(DisplayTest, ShowsThePartThatLiesInTheWindow)
{
    // Four pixels a row, of which two are drawn; three rows.
    const uint16_t pixels[] = { 0, RED, GREEN, 0, 0, BLUE, RED, 0, 0, GREEN, BLUE, 0 };
    CImage picture;
    ASSERT_TRUE(picture.Create(4, 3));
    std::copy(std::begin(pixels), std::end(pixels), picture.pixels);
    const auto draw = [&](int x, int y) { return picture.DrawToDC(GetDC(window), x, y, 1, 0, 2, 3); };
    EXPECT_TRUE(draw(10, 20));
    EXPECT_EQ(ScreenPixel(10, 20), 0xF80000u);
    EXPECT_EQ(ScreenPixel(11, 22), 0x0000F8u);
    EXPECT_EQ(ScreenPixel(12, 22), 0x000000u) << "beyond the width asked for";
    EXPECT_EQ(ScreenPixel(11, 23), 0x000000u) << "beyond the last row";
    EXPECT_TRUE(draw(-1, -1));
    EXPECT_EQ(ScreenPixel(0, 0), 0xF80000u) << "cut at the left and top";
    EXPECT_TRUE(draw(639, 478));
    EXPECT_EQ(ScreenPixel(639, 479), 0x0000F8u) << "cut at the right and bottom";
    EXPECT_TRUE(draw(700, 0)) << "wholly outside is no failure";

    PushWindowEvent(SDL_WINDOWEVENT_FOCUS_LOST);
    RunMessages();
    draw(5, 5);
    EXPECT_EQ(ScreenPixel(5, 5), 0x000000u) << "nothing is shown without the focus";
    PushWindowEvent(SDL_WINDOWEVENT_EXPOSED);
    RunMessages();
    EXPECT_EQ(ScreenPixel(5, 5), 0xF80000u) << "but the last frame when it is uncovered";
}

TEST_F(DisplayTest, ScalesFrameAndMouseToTheScreenAndGivesTheWindowBack)
{
    ASSERT_TRUE(DisplaySetMode(window, 640, 480, false));
    CImage halves;
    ASSERT_TRUE(halves.Create(640, 480));
    for (int y = 0; y < 480; ++y)
        for (int x = 0; x < 640; ++x)
            halves.Row(y)[x] = x < 320 ? RED : BLUE;
    isWindowed = false;
    DisplayPresent(halves);
    EXPECT_EQ(ScreenPixel(0, 0), 0xF80000u);
    EXPECT_EQ(ScreenPixel(505, 767), 0xF80000u) << "the screen is 1.6 times as wide as the frame";
    EXPECT_EQ(ScreenPixel(518, 767), 0x0000F8u);
    EXPECT_EQ(ScreenPixel(1023, 767), 0x0000F8u);
    EXPECT_EQ(Mapped(1023, 767), MAKELPARAM(639, 479));
    EXPECT_EQ(Mapped(-1, -17), MAKELPARAM(-1, -11)) << "left of and above the frame";

    isWindowed = true;
    ASSERT_TRUE(DisplaySetMode(window, 640, 480, true));
    EXPECT_EQ(Mapped(512, 384), MAKELPARAM(512, 384)) << "the window has its size again";
}
}
