#include "platform/sdl/native_window.h"
#include "platform/sdl/window_fixture.h"

#include <cstdlib>

using WindowTest = WindowFixture;

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
    EXPECT_EQ(userResizes(700), 640);
    EXPECT_EQ(userResizes(800), 640);
    int attempts = 0;
    while (userResizes(900) == 640 && attempts < 10)
        ++attempts;
    EXPECT_EQ(width, 900) << "no endless quarrel";
    PushMotion(450, 250);
    RunMessages();
    EXPECT_EQ(received.back().lParam, MAKELPARAM(320, 240)) << "the frame is scaled to that size";
}

TEST_F(WindowTest, MaximisesAndClosesThroughTheProcedure)
{
    PushWindowEvent(SDL_WINDOWEVENT_MAXIMIZED);
    PushWindowEvent(SDL_WINDOWEVENT_CLOSE);
    PushMotion(1, 1);
    EXPECT_TRUE(RunMessages());
    EXPECT_EQ(Messages(), (std::vector<UINT>{ WM_SYSCOMMAND, WM_SYSCOMMAND, WM_CLOSE, WM_DESTROY }));
    EXPECT_EQ(received[0].wParam, SC_MAXIMIZE);
    EXPECT_EQ(GetDC(window), nullptr);
    EXPECT_FALSE(DestroyWindow(window));
}

TEST_F(WindowTest, CannotBeMadeWithoutADisplay)
{
    TearDown();
    setenv("SDL_VIDEODRIVER", "no such driver", 1);
    testing::internal::CaptureStderr();
    EXPECT_EQ(CreateWindowExA(0, "Test", "Test", 0, 0, 0, 640, 480, nullptr, nullptr, nullptr, nullptr), nullptr);
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.find("Test: cannot open the display (tried: no such driver): "), 0u) << said;
}
