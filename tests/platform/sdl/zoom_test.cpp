#include "platform/posix/remembered_factor.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/window_factor.h"
#include "platform/sdl/window_fixture.h"
#include "support/settings_store.h"

namespace
{
TEST(WindowFactor, FollowsFromTheUsableDesktop)
{
    const struct {
        Desktop desktop;
        int automatic;
        int largest;
        SDL_Rect place; ///< at the automatic factor, asked for in the middle of the left edge
        const char* why;
    } cases[] = {
        { { { 0, 0, 1920, 1200 }, 1 }, 1, 2, { 0, 360, 640, 480 }, "the highest that it is not magnified on" },
        { { { 0, 0, 3840, 2160 }, 1 }, 3, 4, { 0, 360, 1920, 1440 }, "a large screen" },
        { { { 1920, 40, 2560, 1400 }, 1 }, 2, 2, { 1920, 260, 1280, 960 }, "on the right, below a panel" },
        { { { 0, 0, 1080, 1920 }, 1 }, 1, 1, { 0, 720, 640, 480 }, "a narrow one" },
        { { { 0, 0, 600, 400 }, 1 }, 1, 1, { 0, 26, 640, 480 }, "smaller than the frame: the title can be reached" },
        { { { 0, 0, 1920, 1080 }, 2 }, 3, 4, { 0, 180, 960, 720 }, "pixels count, not the desktop's units" },
        { { { 0, 0, 1536, 864 }, 1.25 }, 1, 2, { 0, 240, 512, 384 }, "640 x 480 pixels on a desktop at 125 %" },
    };
    for (const auto& row : cases) {
        EXPECT_EQ(AutomaticFactor({ 640, 480 }, row.desktop), row.automatic) << row.why;
        EXPECT_EQ(LargestFactor({ 640, 480 }, row.desktop), row.largest) << row.why;
        const SDL_Rect& usable = row.desktop.usable;
        const SDL_Point size = ShownSize({ 640, 480 }, row.automatic, row.desktop.scale);
        const SDL_Rect place = PlaceAround({ usable.x, usable.y + usable.h / 2 }, size, usable);
        EXPECT_TRUE(SDL_RectEquals(&place, &row.place)) << row.why;
    }
}

TEST(WindowFactor, IsNotRememberedWhereTheFileHoldsNone)
{
    const SettingsFolder folder;
    for (const char* content : { "factor = 0", "factor = -2", "factor = 2.0", "factor = 4294967298", "factor =", "" }) {
        folder.Write("config/Test/window.toml", content);
        EXPECT_EQ(RememberedFactor("Test"), 0) << content;
    }
}

using ZoomTest = WindowFixture;

TEST_F(ZoomTest, GoesInStepsAroundTheMiddleAndIsRemembered)
{
    const struct {
        std::string key;
        int factor;
        int remembered;
    } presses[] = {
        { "=:Ctrl", 2, 2 }, { "=:Ctrl", 3, 3 }, { "=:Ctrl", 3, 3 }, { "-:Ctrl", 2, 2 },
        { "-:Ctrl", 1, 1 }, { "-:Ctrl", 1, 1 }, { "0:Ctrl", 2, 0 },
    };
    const SettingsFolder folder;
    SetClientSize(nativeWindow, { 320, 240 });
    SDL_SetWindowPosition(nativeWindow.handle, 352, 264);
    for (const auto& press : presses) {
        Push("+" + press.key);
        Push("-" + press.key);
        RunFrames();
        SDL_Rect area = {};
        SDL_GetWindowPosition(nativeWindow.handle, &area.x, &area.y);
        SDL_GetWindowSize(nativeWindow.handle, &area.w, &area.h);
        EXPECT_TRUE(area.w == 320 * press.factor && area.h == 240 * press.factor) << area.w << ", " << area.h;
        EXPECT_TRUE(area.x + area.w / 2 == 512 && area.y >= TITLE_HEIGHT) << area.x << ", " << area.y;
        EXPECT_EQ(RememberedFactor("Test"), press.remembered);
    }
}
}
