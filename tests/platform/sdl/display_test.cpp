#include "platform/directdraw.h"
#include "platform/gdi.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/window_fixture.h"

#include <array>

namespace
{
constexpr uint16_t RED = 0xF800;
constexpr uint16_t GREEN = 0x07E0;
constexpr uint16_t BLUE = 0x001F;

struct FitCase {
    SDL_Point area;
    SDL_Rect shown;
    int factor;
    const char* why;
};

class FitTable : public testing::TestWithParam<FitCase>
{
};

struct BitmapDescription {
    BITMAPINFOHEADER header;
    std::array<DWORD, 3> masks;
};

/// Rows of `width` pixels, the top one first.
BitmapDescription Rgb565Picture(int width, int height)
{
    BitmapDescription picture = {};
    picture.header.biSize = sizeof picture.header;
    picture.header.biWidth = width;
    picture.header.biHeight = -height;
    picture.header.biPlanes = 1;
    picture.header.biBitCount = 16;
    picture.header.biCompression = BI_BITFIELDS;
    picture.masks = { 0xF800, 0x07E0, 0x001F };
    return picture;
}

class GdiDisplayTest : public WindowFixture
{
protected:
    int Set(int x, int y, int width, int height, int sourceX, const void* pixels,
            const BitmapDescription& picture) const
    {
        return SetDIBitsToDevice(GetDC(window), x, y, static_cast<DWORD>(width), static_cast<DWORD>(height), sourceX, 0,
                                 0, static_cast<UINT>(height), pixels, reinterpret_cast<const BITMAPINFO*>(&picture),
                                 DIB_RGB_COLORS);
    }
};

/// Full screen as the game sets it up.
class DirectDrawTest : public WindowFixture
{
protected:
    void SetUp() override
    {
        WindowFixture::SetUp();
        ASSERT_EQ(DirectDrawCreate(nullptr, &directDraw, nullptr), DD_OK);
        ASSERT_EQ(directDraw->SetCooperativeLevel(window, DDSCL_EXCLUSIVE | DDSCL_FULLSCREEN), DD_OK);
    }

    void TearDown() override
    {
        if (directDraw)
            directDraw->Release();
        WindowFixture::TearDown();
    }

    void EnterFullScreen()
    {
        ASSERT_EQ(directDraw->SetDisplayMode(640, 480, 16), DD_OK);
        DDSURFACEDESC description = {};
        description.ddsCaps.dwCaps = DDSCAPS_PRIMARYSURFACE | DDSCAPS_FLIP | DDSCAPS_COMPLEX;
        description.dwBackBufferCount = 1;
        ASSERT_EQ(directDraw->CreateSurface(&description, &primary, nullptr), DD_OK);
        DDSCAPS caps = { DDSCAPS_BACKBUFFER };
        ASSERT_EQ(primary->GetAttachedSurface(&caps, &back), DD_OK);
        IDirectDrawClipper* clipper = nullptr;
        ASSERT_EQ(directDraw->CreateClipper(0, &clipper, nullptr), DD_OK);
        ASSERT_EQ(clipper->SetHWnd(0, window), DD_OK);
        ASSERT_EQ(primary->SetClipper(clipper), DD_OK);
        EXPECT_EQ(clipper->Release(), 1u) << "the primary surface keeps it";
    }

    void LeaveFullScreen()
    {
        EXPECT_EQ(back->Release(), 1u) << "the primary surface owns it";
        EXPECT_EQ(primary->Release(), 0u);
        EXPECT_EQ(directDraw->RestoreDisplayMode(), DD_OK);
        EXPECT_EQ(directDraw->SetCooperativeLevel(window, DDSCL_NORMAL), DD_OK);
        EXPECT_EQ(directDraw->Release(), 0u);
        directDraw = nullptr;
    }

    /// The left half red, the right one blue.
    void WriteHalves()
    {
        DDSURFACEDESC description = {};
        ASSERT_EQ(back->Lock(nullptr, &description, DDLOCK_WAIT, nullptr), DD_OK);
        for (DWORD y = 0; y < description.dwHeight; ++y) {
            auto* row = reinterpret_cast<uint16_t*>(static_cast<char*>(description.lpSurface) +
                                                    static_cast<int>(y) * description.lPitch);
            for (int x = 0; x < 640; ++x)
                row[x] = x < 320 ? RED : BLUE;
        }
        EXPECT_NE(back->Lock(nullptr, &description, DDLOCK_WAIT, nullptr), DD_OK) << "locked already";
        EXPECT_EQ(back->Unlock(description.lpSurface), DD_OK);
        EXPECT_NE(back->Unlock(description.lpSurface), DD_OK);
    }

    IDirectDraw* directDraw = nullptr;
    IDirectDrawSurface* primary = nullptr;
    IDirectDrawSurface* back = nullptr;
};
}

TEST_P(FitTable, ShowsTheFrameAsLargeAsItFits)
{
    const FitCase& fit = GetParam();
    const SDL_Rect shown = FitFrame({ 640, 480 }, fit.area);
    EXPECT_TRUE(SDL_RectEquals(&shown, &fit.shown))
        << fit.why << ": " << shown.x << "," << shown.y << " " << shown.w << "x" << shown.h;
    EXPECT_EQ(NearestWholeFactor(640, shown.w), fit.factor) << fit.why;
}

INSTANTIATE_TEST_SUITE_P(
    Screens, FitTable,
    testing::Values(FitCase{ { 640, 480 }, { 0, 0, 640, 480 }, 1, "the window itself" },
                    FitCase{ { 1280, 1024 }, { 0, 32, 1280, 960 }, 2, "bars above and below" },
                    FitCase{ { 1920, 1080 }, { 240, 0, 1440, 1080 }, 2, "2.25 times: bars left and right" },
                    FitCase{ { 1366, 768 }, { 171, 0, 1024, 768 }, 2, "1.6 times is nearer to 2" },
                    FitCase{ { 900, 900 }, { 0, 112, 900, 675 }, 1, "1.4 times is nearer to 1" },
                    FitCase{ { 320, 200 }, { 26, 0, 267, 200 }, 1, "smaller than the frame" },
                    FitCase{ { 1, 1 }, { 0, 0, 1, 1 }, 1, "next to nothing" }));

TEST_F(GdiDisplayTest, ShowsThePartThatLiesInTheWindow)
{
    // Four pixels a row, of which two are drawn; three rows.
    const uint16_t pixels[] = { 0, RED, GREEN, 0, 0, BLUE, RED, 0, 0, GREEN, BLUE, 0 };
    const BitmapDescription picture = Rgb565Picture(4, 3);
    EXPECT_EQ(Set(10, 20, 2, 3, 1, pixels, picture), 3);
    EXPECT_EQ(ScreenPixel(10, 20), 0xF80000u);
    EXPECT_EQ(ScreenPixel(11, 20), 0x00F800u);
    EXPECT_EQ(ScreenPixel(10, 22), 0x00F800u);
    EXPECT_EQ(ScreenPixel(12, 20), 0x000000u) << "beyond the width asked for";
    EXPECT_EQ(ScreenPixel(10, 23), 0x000000u) << "beyond the last row";

    EXPECT_EQ(Set(-1, -1, 2, 3, 1, pixels, picture), 3);
    EXPECT_EQ(ScreenPixel(0, 0), 0xF80000u) << "cut at the left and top";
    EXPECT_EQ(Set(639, 478, 2, 3, 1, pixels, picture), 3);
    EXPECT_EQ(ScreenPixel(639, 479), 0x0000F8u) << "cut at the right and bottom";
    EXPECT_EQ(Set(700, 0, 2, 3, 1, pixels, picture), 3) << "wholly outside is no failure";
}

TEST_F(GdiDisplayTest, ShowsNothingWithoutTheFocusButTheLastFrameWhenUncovered)
{
    const uint16_t pixel[] = { RED, 0 };
    PushWindowEvent(SDL_WINDOWEVENT_FOCUS_LOST);
    RunMessages();
    Set(5, 5, 1, 1, 0, pixel, Rgb565Picture(2, 1));
    ASSERT_EQ(ScreenPixel(5, 5), 0x000000u);
    PushWindowEvent(SDL_WINDOWEVENT_EXPOSED);
    RunMessages();
    EXPECT_EQ(ScreenPixel(5, 5), 0xF80000u);
}

TEST_F(DirectDrawTest, ScalesTheFrameToTheScreenAndGivesTheWindowBack)
{
    EnterFullScreen();
    WriteHalves();
    EXPECT_EQ(primary->Blt(nullptr, back, nullptr, DDBLT_WAIT, nullptr), DD_OK);
    EXPECT_EQ(ScreenPixel(0, 0), 0xF80000u);
    EXPECT_EQ(ScreenPixel(505, 767), 0xF80000u) << "the screen is 1.6 times as wide as the frame";
    EXPECT_EQ(ScreenPixel(518, 767), 0x0000F8u);
    EXPECT_EQ(ScreenPixel(1023, 767), 0x0000F8u);

    LeaveFullScreen();
    SDL_Point size = {};
    SDL_GetWindowSize(nativeWindow.handle, &size.x, &size.y);
    EXPECT_EQ(size.x, 640);
    EXPECT_EQ(size.y, 480);
    EXPECT_EQ(SDL_GetWindowFlags(nativeWindow.handle) & SDL_WINDOW_FULLSCREEN, 0u);
}

TEST_F(DirectDrawTest, MapsTheMouseBackToTheFrame)
{
    EnterFullScreen();
    RunMessages();
    const auto mapped = [this](int x, int y) {
        PushMotion(x, y);
        RunMessages();
        return received.back().lParam;
    };
    EXPECT_EQ(mapped(0, 0), MAKELPARAM(0, 0));
    EXPECT_EQ(mapped(1023, 767), MAKELPARAM(639, 479));
    EXPECT_EQ(mapped(512, 384), MAKELPARAM(320, 240));
    EXPECT_EQ(mapped(-1, -17), MAKELPARAM(-1, -11)) << "left of and above the frame";
    LeaveFullScreen();
    EXPECT_EQ(mapped(512, 384), MAKELPARAM(512, 384));
}

TEST_F(DirectDrawTest, FailsStepByStep)
{
    DDSURFACEDESC description = {};
    description.ddsCaps.dwCaps = DDSCAPS_PRIMARYSURFACE;
    description.dwBackBufferCount = 1;
    EXPECT_NE(directDraw->CreateSurface(&description, &primary, nullptr), DD_OK) << "no mode is set";
    EXPECT_NE(directDraw->SetDisplayMode(640, 480, 32), DD_OK) << "frames have 16 bits";
    directDraw->SetCooperativeLevel(window, DDSCL_NORMAL);
    EXPECT_NE(directDraw->SetDisplayMode(640, 480, 16), DD_OK) << "the screen is not ours";
}
