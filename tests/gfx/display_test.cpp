#include "gfx/display.h"

#include "gfx/error.h"
#include "gfx/pixel_rules.h"
#include "support/program_fixture.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr int WIDTH = 640;
constexpr int HEIGHT = 480;

struct Display : ProgramFixture {
    void SetUp() override
    {
        ProgramFixture::SetUp();
        ASSERT_TRUE(frame.Create(WIDTH, HEIGHT));
        std::generate(frame.pixels, frame.Row(HEIGHT), [pixel = 0]() mutable { return uint16_t(pixel += 7); });
        directX.TakeCalls();
    }
    static bool EnterFullScreen() { return DisplaySetMode(displayWindow, WIDTH, HEIGHT, false); }

    CImage frame;
};
}

TEST_F(Display, EachFailedFullScreenStepStoresItsCodeAndReleasesAll)
{
    const std::pair<const char*, int> failures[] = {
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
        EXPECT_FALSE(EnterFullScreen()) << call;
        EXPECT_EQ(lastError, code);
        EXPECT_EQ(directX.objects, before) << call;
        directX.TakeCalls();
        DisplayPresent(frame);
        EXPECT_EQ(directX.TakeCalls(), "") << call;
    }
    lastError = ENGINE_NO_ERROR;
}

TEST_F(Display, FullScreenShowsTheFrameAlsoWithFiveBitsOfGreenAndAfterALoss)
{
    for (const uint32_t greenMask : { 0x07E0u, 0x03E0u, 0x1234u }) {
        directX.greenMask = greenMask;
        ASSERT_TRUE(EnterFullScreen());
        EXPECT_EQ(directX.TakeCalls(),
                  "DirectDrawCreate, SetCooperativeLevel 17, SetDisplayMode 640 480 16, CreateSurface 1 33 8728 1, "
                  "GetAttachedSurface 4, CreateClipper 0, SetHWnd 0, SetClipper, GetPixelFormat 1");
        DisplayPresent(frame);
        std::vector<uint16_t> expected(frame.pixels, frame.Row(HEIGHT));
        if (greenMask == 0x03E0)
            std::transform(expected.begin(), expected.end(), expected.begin(), Rgb555Pixel);
        EXPECT_TRUE(directX.screen == expected) << greenMask;
        directX.surfacesLost = true;
        DisplayPresent(frame);
        directX.surfacesLost = false;
        directX.Fail("Lock");
        DisplayPresent(frame); // the back surface is still copied
        EXPECT_EQ(directX.TakeCalls(),
                  "Lock 1, Unlock, Blt 16777216, Restore, Lock 1, Unlock, Restore, Blt 16777216, Lock 1, Blt 16777216");
        directX.Fail("none");
        DisplayRelease();
        EXPECT_EQ(directX.TakeCalls(), "RestoreDisplayMode, SetCooperativeLevel 8");
    }
}
