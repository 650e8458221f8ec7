#include "gfx/display.h"

#include "doubles/directx.h"
#include "gfx/error.h"
#include "platform/sdl/native_window.h"
#include "support/program_fixture.h"

namespace
{
constexpr int WIDTH = 640;
constexpr int HEIGHT = 480;
constexpr char FULL_SCREEN[] = "DirectDrawCreate, SetCooperativeLevel 17, SetDisplayMode 640 480 16, CreateSurface 1, "
                               "GetAttachedSurface, CreateClipper, SetHWnd, SetClipper, GetPixelFormat";

class Display : public ProgramFixture
{
protected:
    void SetUp() override
    {
        ProgramFixture::SetUp();
        ASSERT_TRUE(frame.Create(WIDTH, HEIGHT));
        for (int i = 0; i < WIDTH * HEIGHT; ++i)
            frame.pixels[i] = static_cast<uint16_t>(i * 7);
        directX.TakeCalls();
    }
    static bool SetMode(bool windowed) { return DisplaySetMode(displayWindow, WIDTH, HEIGHT, windowed); }

    CImage frame;
};
}

TEST_F(Display, WindowHasTheClientSizeInTheMiddleOfTheScreenAndShowsTheFrame)
{
    SetWindowLongA(displayWindow, GWL_STYLE, WS_POPUP | WS_THICKFRAME | WS_VISIBLE);
    ASSERT_TRUE(SetMode(true));
    EXPECT_EQ(nativeWindow.style, WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX);
    EXPECT_EQ(nativeWindow.clientSize.x, WIDTH);
    EXPECT_EQ(nativeWindow.clientSize.y, HEIGHT);
    RECT outer{ 0, 0, WIDTH, HEIGHT };
    AdjustWindowRectEx(&outer, nativeWindow.style, FALSE, 0);
    EXPECT_EQ(nativeWindow.clientPosition.x + outer.left, (1024 - (outer.right - outer.left)) / 2);
    EXPECT_EQ(nativeWindow.clientPosition.y + outer.top, (768 - (outer.bottom - outer.top)) / 2);
    frame.Row(HEIGHT - 1)[WIDTH - 1] = Rgb565(0x80, 0x40, 0x20);
    DisplayPresent(frame);
    EXPECT_EQ(WindowPixel(WIDTH - 1, HEIGHT - 1), Rgb565(0x80, 0x40, 0x20));
    frame.Row(202)[303] = Rgb565(0x40, 0x80, 0xC0);
    const HDC context = GetDC(displayWindow);
    EXPECT_TRUE(frame.DrawToDC(context, 10, 20, 300, 200, 8, 4));
    ReleaseDC(displayWindow, context);
    EXPECT_EQ(WindowPixel(13, 22), Rgb565(0x40, 0x80, 0xC0)) << "from its source column and row on";
    CImage narrow; // its rows are no whole groups of 4 bytes
    narrow.Create(3, 2);
    DisplayPresent(narrow);
    EXPECT_EQ(directX.TakeCalls(), "");
}

TEST_F(Display, EachFailedFullScreenStepStoresItsCodeAndReleasesAll)
{
    const struct {
        const char* call;
        int code;
    } failures[] = {
        { "DirectDrawCreate", ENGINE_CREATE_DIRECTDRAW },
        { "SetDisplayMode", ENGINE_SET_DISPLAY_MODE },
        { "CreateSurface", ENGINE_CREATE_SURFACE },
        { "GetAttachedSurface", ENGINE_ATTACH_SURFACE },
        { "CreateClipper", ENGINE_CREATE_CLIPPER },
        { "SetHWnd", ENGINE_CLIPPER_WINDOW },
        { "SetClipper", ENGINE_SET_CLIPPER },
    };
    const int before = directX.objects;
    for (const auto& [call, code] : failures) {
        directX.Fail(call);
        EXPECT_FALSE(SetMode(false)) << call;
        EXPECT_EQ(lastError, code);
        EXPECT_EQ(directX.objects, before) << call;
        EXPECT_FALSE(directX.fullScreen) << call;
        DisplayPresent(frame);
        EXPECT_TRUE(directX.screen.empty()) << call;
        testing::internal::CaptureStderr();
        ShowLastError();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), std::string("Error: ") + ErrorText(code) + "\n");
    }
    EXPECT_STREQ(ErrorText(1000), "Unknown error");
    lastError = ENGINE_NO_ERROR;
}

TEST_F(Display, FullScreenShowsTheFrameUnchangedUnlessGreenHasFiveBits)
{
    for (const uint32_t greenMask : { 0x07E0u, 0x03E0u, 0x1234u }) {
        directX.greenMask = greenMask;
        ASSERT_TRUE(SetMode(false));
        EXPECT_EQ(directX.TakeCalls(), FULL_SCREEN);
        DisplayPresent(frame);
        ASSERT_EQ(directX.screen.size(), static_cast<size_t>(WIDTH * HEIGHT));
        for (int i = 0; i < WIDTH * HEIGHT; ++i) {
            const int p = frame.pixels[i];
            const int in555 = p / 2048 * 1024 + p / 64 % 32 * 32 + p % 32;
            ASSERT_EQ(directX.screen[static_cast<size_t>(i)], greenMask == 0x03E0 ? in555 : p) << i;
        }
        DisplayRelease();
        EXPECT_EQ(directX.TakeCalls(), "Lock, Unlock, Blt, RestoreDisplayMode, SetCooperativeLevel 8");
    }
}

TEST_F(Display, RestoresLostSurfacesAndSurvivesFailedLocks)
{
    ASSERT_TRUE(SetMode(false));
    directX.TakeCalls();
    directX.surfacesLost = true;
    DisplayPresent(frame);
    EXPECT_EQ(directX.TakeCalls(), "Restore, Lock, Unlock, Restore, Blt");
    directX.surfacesLost = false;
    directX.Fail("Lock");
    DisplayPresent(frame);
    EXPECT_EQ(directX.TakeCalls(), "Lock, Blt") << "the back surface is still copied";
}
