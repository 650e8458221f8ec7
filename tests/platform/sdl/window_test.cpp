#include "gfx/display.h"
#include "gfx/image.h"
#include "platform/gdi.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/window_fixture.h"

#include <algorithm>
#include <csignal>
#include <string>

namespace
{
using namespace std::string_literals;

constexpr uint16_t RED = 0xF800;
constexpr uint16_t BLUE = 0x001F;

class WindowTest : public WindowFixture
{
protected:
    /// What the window is told of the mouse there.
    LPARAM Mapped(int x, int y)
    {
        PushMouse(SDL_MOUSEMOTION, x, y);
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

TEST_F(WindowTest, ShowsThePartThatLiesInItAndNothingNewWithoutTheFocus)
{
    CImage picture; // its last row is blue
    ASSERT_TRUE(picture.Create(4, 3));
    std::fill_n(picture.pixels, 12, RED);
    std::fill_n(picture.Row(2), 4, BLUE);
    const auto draw = [&](int x, int y) { return picture.DrawToDC(GetDC(window), x, y, 1, 0, 2, 3); };
    EXPECT_TRUE(draw(-1, -2));
    EXPECT_EQ(ScreenPixel(0, 0), 0x0000F8u) << "cut at the left and top";
    EXPECT_EQ(ScreenPixel(1, 0), 0x000000u) << "beyond the width asked for";
    EXPECT_EQ(ScreenPixel(0, 1), 0x000000u) << "beyond the last row";
    EXPECT_TRUE(draw(639, 478));
    EXPECT_EQ(ScreenPixel(639, 479), 0xF80000u) << "cut at the right and bottom";
    EXPECT_TRUE(draw(700, 0)) << "wholly outside is no failure";

    PushWindowEvent(SDL_WINDOWEVENT_FOCUS_LOST);
    RunMessages();
    draw(5, 5);
    EXPECT_EQ(ScreenPixel(5, 5), 0x000000u);
    PushWindowEvent(SDL_WINDOWEVENT_EXPOSED);
    RunMessages();
    EXPECT_EQ(ScreenPixel(5, 5), 0xF80000u) << "the last frame when it is uncovered";
}

TEST_F(WindowTest, ScalesFrameAndMouseToTheScreenAndIsGivenBack)
{
    isWindowed = false;
    ASSERT_TRUE(DisplaySetMode(window, 640, 480, false));
    CImage halves;
    ASSERT_TRUE(halves.Create(640, 480));
    std::fill_n(halves.pixels, 640 * 480, RED);
    std::fill_n(halves.Row(240), 640 * 240, BLUE);
    DisplayPresent(halves);
    EXPECT_EQ(ScreenPixel(0, 378), 0xF80000u) << "the screen is 1.6 times as high as the frame";
    EXPECT_EQ(ScreenPixel(1023, 767), 0x0000F8u);
    EXPECT_EQ(Mapped(1023, 767), MAKELPARAM(639, 479));
    EXPECT_EQ(Mapped(-1, -17), MAKELPARAM(-1, -11)) << "left of and above the frame";

    isWindowed = true;
    ASSERT_TRUE(DisplaySetMode(window, 640, 480, true));
    EXPECT_EQ(Mapped(512, 384), MAKELPARAM(512, 384)) << "the window has its size again";
    EXPECT_TRUE(GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE);
}

TEST_F(WindowTest, UndoesWhatTheBorderDoesUnlessTheWindowManagerInsists)
{
    int width = 0;
    const auto userResizes = [&](int wanted) {
        SDL_SetWindowSize(nativeWindow.handle, wanted, 500);
        PushWindowEvent(SDL_WINDOWEVENT_RESIZED);
        RunMessages();
        SDL_GetWindowSize(nativeWindow.handle, &width, nullptr);
        return width;
    };
    EXPECT_TRUE(SDL_GetWindowFlags(nativeWindow.handle) & SDL_WINDOW_RESIZABLE) << "or it has no maximise box";
    EXPECT_EQ(userResizes(700), 640);
    for (int attempts = 0; attempts < 10 && width == 640; ++attempts)
        userResizes(900);
    EXPECT_EQ(width, 900) << "no endless quarrel";
    EXPECT_EQ(Mapped(450, 250), MAKELPARAM(320, 240)) << "the frame is scaled to that size";
}

TEST_F(WindowTest, MaximisesAndClosesThroughTheProcedure)
{
    PushWindowEvent(SDL_WINDOWEVENT_MAXIMIZED);
    PushWindowEvent(SDL_WINDOWEVENT_CLOSE);
    PushMouse(SDL_MOUSEMOTION, 1, 1);
    EXPECT_TRUE(RunMessages());
    EXPECT_EQ(Messages(), (std::vector<UINT>{ WM_SYSCOMMAND, WM_SYSCOMMAND, WM_CLOSE, WM_DESTROY }));
    EXPECT_EQ(received[0].wParam, SC_MAXIMIZE);
    EXPECT_EQ(GetDC(window), nullptr);
    EXPECT_FALSE(DestroyWindow(window));
}

TEST_F(WindowTest, CannotBeMadeWithoutADisplay)
{
    TearDown();
    std::signal(SIGHUP, SIG_IGN);
    for (const char* variable : { "SDL_VIDEODRIVER", "DISPLAY", "WAYLAND_DISPLAY" })
        unsetenv(variable);
    for (const char* tried : { "", "no such driver): " }) { // left to itself, or told
        if (*tried)
            setenv("SDL_VIDEODRIVER", "no such driver", 1);
        testing::internal::CaptureStderr();
        EXPECT_EQ(CreateWindowExA(0, "Test", "Test", 0, 0, 0, 640, 480, nullptr, nullptr, nullptr, nullptr), nullptr);
        const std::string said = testing::internal::GetCapturedStderr();
        EXPECT_NE(said.find("Test: cannot open the display (tried: "s + tried), std::string::npos) << said;
        EXPECT_EQ(said.find("dummy"), std::string::npos) << said;
    }
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN) << "a program that is to outlive its terminal does";
}
}
