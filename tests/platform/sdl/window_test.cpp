#include "platform/sdl/native_window.h"
#include "platform/sdl/window_fixture.h"

#include <cstdlib>

namespace
{
using Sequence = std::vector<UINT>;

class WindowTest : public WindowFixture
{
protected:
    SDL_Point ClientSize() const
    {
        SDL_Point size = {};
        SDL_GetWindowSize(nativeWindow.handle, &size.x, &size.y);
        return size;
    }
};
}

TEST_F(WindowTest, UndoesWhatTheBorderDoesUnlessTheWindowManagerInsists)
{
    const auto userResizes = [this](int width, int height) {
        SDL_SetWindowSize(nativeWindow.handle, width, height);
        PushWindowEvent(SDL_WINDOWEVENT_RESIZED);
        RunMessages();
        return ClientSize().x;
    };
    EXPECT_EQ(userResizes(700, 500), 640);
    EXPECT_EQ(userResizes(800, 600), 640);
    int attempts = 0;
    while (userResizes(900, 500) == 640 && attempts < 10)
        ++attempts;
    EXPECT_EQ(ClientSize().x, 900) << "no endless quarrel";
    PushMotion(450, 250);
    RunMessages();
    EXPECT_EQ(received.back().lParam, MAKELPARAM(320, 240)) << "the frame is scaled to that size";
}

TEST_F(WindowTest, ClosesThroughTheProcedure)
{
    PushWindowEvent(SDL_WINDOWEVENT_CLOSE);
    PushMotion(1, 1);
    EXPECT_TRUE(RunMessages());
    EXPECT_EQ(Messages(), Sequence({ WM_SYSCOMMAND, WM_CLOSE, WM_DESTROY })) << "nothing follows the window's end";
    EXPECT_EQ(GetDC(window), nullptr);
    EXPECT_FALSE(DestroyWindow(window));
}

TEST_F(WindowTest, TurnsMaximisingIntoACommand)
{
    PushWindowEvent(SDL_WINDOWEVENT_MAXIMIZED);
    RunMessages();
    ASSERT_EQ(Messages(), Sequence({ WM_SYSCOMMAND }));
    EXPECT_EQ(received[0].wParam, SC_MAXIMIZE);
    EXPECT_EQ(SDL_GetWindowFlags(nativeWindow.handle) & SDL_WINDOW_MAXIMIZED, 0u);
}

TEST_F(WindowTest, WritesMessageBoxesOutWhereNobodySeesThem)
{
    testing::internal::CaptureStderr();
    MessageBoxA(nullptr, "Can not load file", "Error", MB_ICONERROR);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Error: Can not load file\n");
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
