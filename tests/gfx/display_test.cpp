#include "gfx/display.h"

#include "doubles/fake_platform.h"
#include "gfx/error.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
constexpr int WIDTH = 640;
constexpr int HEIGHT = 480;

class Display : public testing::Test
{
protected:
    void SetUp() override
    {
        fake.Reset();
        lastError = ENGINE_NO_ERROR;
        ASSERT_TRUE(frame.Create(WIDTH, HEIGHT));
        for (int i = 0; i < WIDTH * HEIGHT; ++i)
            frame.pixels[i] = static_cast<uint16_t>(i * 7);
    }
    void TearDown() override { DisplayRelease(); }

    bool SetMode(bool windowed) { return DisplaySetMode(FAKE_WINDOW, WIDTH, HEIGHT, windowed); }

    CImage frame;
};

struct FailureCase {
    const char* call;
    int code;
};
constexpr FailureCase failureCases[] = {
    { "DirectDrawCreate", ENGINE_CREATE_DIRECTDRAW },
    { "SetDisplayMode", ENGINE_SET_DISPLAY_MODE },
    { "CreateSurface", ENGINE_CREATE_SURFACE },
    { "GetAttachedSurface", ENGINE_ATTACH_SURFACE },
    { "CreateClipper", ENGINE_CREATE_CLIPPER },
    { "SetHWnd", ENGINE_CLIPPER_WINDOW },
    { "SetClipper", ENGINE_SET_CLIPPER },
};
}

TEST_F(Display, WindowHasTheClientSizeInTheMiddleOfTheScreen)
{
    fake.style = WS_POPUP | WS_THICKFRAME | WS_VISIBLE;
    ASSERT_TRUE(SetMode(true));
    EXPECT_EQ(fake.style, WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX);
    RECT expected{ 0, 0, WIDTH, HEIGHT };
    AdjustWindowRectEx(&expected, fake.style, FALSE, 0);
    EXPECT_EQ(fake.outer.right - fake.outer.left, expected.right - expected.left);
    EXPECT_EQ(fake.outer.bottom - fake.outer.top, expected.bottom - expected.top);
    EXPECT_LE(std::abs(fake.outer.left - (fake.screenWidth - fake.outer.right)), 1);
    EXPECT_LE(std::abs(fake.outer.top - (fake.screenHeight - fake.outer.bottom)), 1);
    EXPECT_TRUE(fake.windowShown);
    EXPECT_FALSE(fake.topmost);
    EXPECT_EQ(fake.Calls("RedrawWindow"), 1);
    EXPECT_EQ(fake.directDrawObjects, 0);
}

TEST_F(Display, EachFailedFullScreenStepStoresItsCodeAndReleasesAll)
{
    for (const FailureCase& failure : failureCases) {
        SCOPED_TRACE(failure.call);
        fake.Reset();
        fake.Fail(failure.call);
        EXPECT_FALSE(SetMode(false));
        EXPECT_EQ(lastError, failure.code);
        EXPECT_EQ(fake.directDrawObjects, 0);
        EXPECT_FALSE(fake.fullScreen);
        EXPECT_TRUE(fake.style & WS_POPUP);
        DisplayPresent(frame);
        EXPECT_EQ(fake.framesPresented, 0);
    }
}

TEST_F(Display, FullScreenShowsTheFrameUnchangedUnlessGreenHasFiveBits)
{
    for (const uint32_t greenMask : { 0x07E0u, 0x03E0u, 0x1234u }) {
        fake.greenMask = greenMask;
        ASSERT_TRUE(SetMode(false));
        EXPECT_TRUE(fake.topmost);
        EXPECT_EQ(fake.directDrawObjects, 3) << "device and two surfaces; the clipper is the primary's";
        DisplayPresent(frame);
        ASSERT_EQ(fake.screen.size(), static_cast<size_t>(WIDTH * HEIGHT));
        for (int i = 0; i < WIDTH * HEIGHT; ++i) {
            const int p = frame.pixels[i];
            const int in555 = p / 2048 * 1024 + p / 64 % 32 * 32 + p % 32;
            ASSERT_EQ(fake.screen[static_cast<size_t>(i)], greenMask == 0x03E0 ? in555 : p) << i;
        }
    }
}

TEST_F(Display, RestoresLostSurfacesAndSurvivesFailedLocks)
{
    ASSERT_TRUE(SetMode(false));
    fake.surfacesLost = true;
    DisplayPresent(frame);
    EXPECT_EQ(fake.Calls("Restore"), 1);
    fake.Fail("Lock", 1);
    const int unlocks = fake.Calls("Unlock");
    DisplayPresent(frame);
    EXPECT_EQ(fake.framesPresented, 2) << "the back surface is still copied";
    EXPECT_EQ(fake.Calls("Unlock"), unlocks);
}

TEST_F(Display, LeavesFullScreenBeforeTheWindowIsRestyled)
{
    ASSERT_TRUE(SetMode(false));
    fake.calls.clear();
    ASSERT_TRUE(SetMode(true));
    EXPECT_EQ(fake.directDrawObjects, 0);
    const auto begin = fake.calls.begin();
    const auto restyled = std::find(begin, fake.calls.end(), "SetWindowPos");
    EXPECT_NE(std::find(begin, restyled, "RestoreDisplayMode"), restyled);
}

TEST_F(Display, WindowShowsTheFrame)
{
    ASSERT_TRUE(SetMode(true));
    DisplayPresent(frame);
    EXPECT_EQ(fake.screen, std::vector<uint16_t>(frame.pixels, frame.pixels + WIDTH * HEIGHT));
    EXPECT_EQ(fake.Calls("ReleaseDC"), 1);

    fake.Fail("SetDIBitsToDevice", 1);
    DisplayPresent(frame);
    EXPECT_EQ(lastError, ENGINE_BLIT_GDI);
    EXPECT_EQ(fake.Calls("ReleaseDC"), 2);
}

TEST_F(Display, ShowsTheLastErrorIfThereWasOne)
{
    ShowLastError();
    EXPECT_TRUE(fake.messageBoxes.empty());
    lastError = ENGINE_SET_DISPLAY_MODE;
    ShowLastError();
    lastError = 1000;
    ShowLastError();
    EXPECT_EQ(fake.messageBoxes,
              (std::vector<std::string>{ "Error: Can not set display mode with DirectDraw", "Error: Unknown error" }));
}
