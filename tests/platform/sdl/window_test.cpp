#include "gfx/display.h"
#include "gfx/image.h"
#include "platform/gdi.h"
#include "platform/sdl/frame_fit.h"
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

struct WindowTest : WindowFixture {
    /// What the window gets of that event.
    static std::string Given(const std::string& event)
    {
        Push(event);
        return RunFrames();
    }
    /// As 0xRRGGBB, each channel in the five bits that every conversion keeps.
    static uint32_t ScreenPixel(int x, int y) { return *ScreenMemory(x, y) & 0xF8F8F8; }
    static uint32_t* ScreenMemory(int x, int y)
    {
        const SDL_Surface* const screen = SDL_GetWindowSurface(nativeWindow.handle);
        return reinterpret_cast<uint32_t*>(static_cast<uint8_t*>(screen->pixels) + ptrdiff_t{ y } * screen->pitch) + x;
    }
};

/// With frames scaled by ourselves, as without a graphics card too, and by SDL's renderer.
struct EachWayWindowTest : WindowTest, testing::WithParamInterface<const char*> {
    void SetUp() override
    {
        setenv("TERVALIS_PRESENT", GetParam(), 1);
        WindowTest::SetUp();
        EXPECT_EQ(SDL_GetRenderer(nativeWindow.handle) != nullptr, GetParam() == "renderer"s);
        unsetenv("TERVALIS_PRESENT");
    }
};
INSTANTIATE_TEST_SUITE_P(Platform, EachWayWindowTest, testing::Values("", "software", "renderer"));

TEST(FrameView, ShowsTheFrameAsLargeAsItFits)
{
    const struct {
        SDL_Point area;
        SDL_Rect shown;
        int factor; ///< the nearest whole one
    } cases[] = {
        { { 1280, 1024 }, { 0, 32, 1280, 960 }, 2 },   // bars above and below
        { { 1920, 1080 }, { 240, 0, 1440, 1080 }, 2 }, // bars left and right
        { { 1600, 1200 }, { 0, 0, 1600, 1200 }, 2 },   // of two equally near ones the smaller
        { { 320, 200 }, { 26, 0, 267, 200 }, 1 },      // smaller than the frame
        { { 1921, 1443 }, { 0, 1, 1920, 1440 }, 3 },   // rounded up by a fractional scale: sharp all the same
        { { 1, 1 }, { 0, 0, 1, 1 }, 1 },
    };
    for (const auto& row : cases) {
        const SDL_Rect shown = FitFrame({ 640, 480 }, row.area);
        EXPECT_TRUE(SDL_RectEquals(&shown, &row.shown)) << row.area.x;
        EXPECT_EQ(NearestWholeFactor(640, shown.w), row.factor) << row.area.x;
    }
}

TEST_F(WindowTest, ShowsThePartThatLiesInItAndNothingNewWithoutTheFocus)
{
    CImage picture; // one pixel is blue
    ASSERT_TRUE(picture.Create(4, 4));
    std::fill_n(picture.pixels, 16, RED);
    picture.Row(3)[2] = BLUE;
    const auto draw = [&](int x, int y) { return picture.DrawToDC(GetDC(window), x, y, 1, 1, 2, 3); };
    EXPECT_TRUE(draw(-1, -2));
    EXPECT_EQ(ScreenPixel(0, 0), 0x0000F8u) << "cut at the left and top";
    EXPECT_EQ(ScreenPixel(1, 0), 0x000000u) << "beyond the width asked for";
    EXPECT_EQ(ScreenPixel(0, 1), 0x000000u) << "beyond the last row";
    EXPECT_TRUE(draw(639, 478));
    EXPECT_EQ(ScreenPixel(639, 479), 0xF80000u) << "cut at the right and bottom";
    EXPECT_TRUE(draw(700, 0)) << "wholly outside is no failure";

    Given("blur");
    draw(5, 5);
    EXPECT_EQ(ScreenPixel(5, 5), 0x000000u);
    Given("exposed");
    EXPECT_EQ(ScreenPixel(5, 5), 0xF80000u) << "the last frame when it is uncovered";
}

TEST_P(EachWayWindowTest, ScalesFrameAndMouseToTheScreenAndIsGivenBack)
{
    constexpr uint32_t MARK = 0x123456;
    isWindowed = false;
    ASSERT_TRUE(DisplaySetMode(window, 640, 480, false));
    CImage halves;
    ASSERT_TRUE(halves.Create(640, 480));
    std::fill_n(halves.pixels, 640 * 480, RED);
    std::fill_n(halves.Row(240), 640 * 240, BLUE);
    DisplayPresent(halves);
    EXPECT_EQ(ScreenPixel(0, 378), 0xF80000u) << "the screen is 1.6 times as high as the frame";
    EXPECT_EQ(ScreenPixel(1023, 767), 0x0000F8u);
    EXPECT_EQ(Given("to1023,767"), "to639,479");
    EXPECT_EQ(Given("to-1,-17"), "to-1,-11") << "left of and above the frame";

    for (int y = 0; y < 768; ++y)
        *ScreenMemory(500, y) = MARK;
    halves.Row(100)[639] = BLUE;
    DisplayPresent(halves);
    const bool scalesOnlyWhatChanged = GetParam() != "renderer"s;
    for (int y = 0; y < 768; ++y)
        ASSERT_EQ(*ScreenMemory(500, y) == MARK, scalesOnlyWhatChanged && y != 160 && y != 161) << y;

    isWindowed = true;
    ASSERT_TRUE(DisplaySetMode(window, 640, 480, true));
    EXPECT_EQ(Given("to512,384"), "to512,384") << "the window has its size again";
    EXPECT_EQ(nativeWindow.style & (WS_POPUP | WS_VISIBLE), WS_VISIBLE);
    SDL_Point place = {};
    SDL_GetWindowPosition(nativeWindow.handle, &place.x, &place.y);
    EXPECT_TRUE(place.x == 192 && place.y == 155) << "its frame is in the middle of the screen";
    SDL_SetWindowSize(nativeWindow.handle, 700, 480);
    DisplayPresent(halves);
    EXPECT_EQ(ScreenPixel(29, 0), 0x000000u);
    EXPECT_EQ(ScreenPixel(30, 0), 0xF80000u) << "all is drawn anew";
}

TEST_F(WindowTest, KeepsTheScreenSaverWaitingWhileThePictureMoves)
{
    CImage picture;
    ASSERT_TRUE(picture.Create(640, 480));
    const auto isFreeAfter = [&](int frames, uint16_t change) {
        for (int i = 0; i < frames; ++i) {
            picture.pixels[0] += change;
            DisplayPresent(picture);
        }
        return SDL_IsScreenSaverEnabled() == SDL_TRUE;
    };
    EXPECT_TRUE(isFreeAfter(0, 1));
    EXPECT_FALSE(isFreeAfter(200, 1));
    EXPECT_FALSE(isFreeAfter(10, 0)) << "a moment's stillness";
    EXPECT_TRUE(isFreeAfter(200, 0));
    EXPECT_TRUE(isFreeAfter(10, 1)) << "a glimpse of movement";
    EXPECT_FALSE(isFreeAfter(200, 1));
    Given("blur");
    EXPECT_TRUE(isFreeAfter(200, 1)) << "unseen";
}

TEST_F(WindowTest, SaysOnceThatItCannotShowFrames)
{
    SDL_SetWindowSize(nativeWindow.handle, 1'000'000'000, 480); // no picture is that wide
    testing::internal::CaptureStderr();
    CImage picture;
    ASSERT_TRUE(picture.Create(1, 1));
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(picture.DrawToDC(GetDC(window), 0, 0, 0, 0, 1, 1)) << "it is kept";
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.find("Test: cannot show frames any more: "), 0u) << said;
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
}

TEST_F(WindowTest, UndoesWhatTheBorderDoesUnlessTheWindowManagerInsists)
{
    int width = 0;
    const auto userResizes = [&](int wanted) {
        SDL_SetWindowSize(nativeWindow.handle, wanted, 500);
        Given("resized");
        SDL_GetWindowSize(nativeWindow.handle, &width, nullptr);
        return width;
    };
    EXPECT_TRUE(SDL_GetWindowFlags(nativeWindow.handle) & SDL_WINDOW_RESIZABLE) << "or it has no maximise box";
    EXPECT_EQ(nativeWindow.style, WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX);
    for (int wanted = 700; wanted < 710; ++wanted)
        EXPECT_EQ(userResizes(wanted), 640) << "however far the border is dragged";
    for (int attempts = 0; attempts < 10 && width == 640; ++attempts)
        userResizes(900);
    EXPECT_EQ(width, 900) << "no endless quarrel";
    SetClientSize(nativeWindow, { 640, 480 });
    EXPECT_EQ(userResizes(900), 640) << "a new size, a new start";
    for (int attempts = 0; attempts < 10 && width == 640; ++attempts)
        userResizes(900);
    EXPECT_EQ(Given("to450,250"), "to320,240") << "the frame is scaled to that size";
    SDL_SetWindowSize(nativeWindow.handle, 1920, 1440);
    EXPECT_EQ(Given("to1919,1439"), "to639,479") << "the last pixels of a whole factor";
    EXPECT_EQ(Given("to1917,2"), "to639,0");
    EXPECT_EQ(Given("to1916,3"), "to638,1");
}

TEST_F(WindowTest, LetsAProgramThatIsToDoSoOutliveItsTerminal)
{
    TearDown();
    EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_IGN) << "the settings are still to be stored";
    std::signal(SIGHUP, SIG_IGN);
    SetUp();
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}
}
