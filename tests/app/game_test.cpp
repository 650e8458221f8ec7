#include "app/game.h"

#include "app/globals.h"
#include "app/section.h"
#include "doubles/fake_platform.h"
#include "gfx/display.h"
#include "gfx/error.h"
#include "platform/kernel.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace
{
/// A scene that counts what is asked of it; each operation can be told to fail.
struct ProbeScene : CSection {
    bool SectionBegin() override { return ++begins, succeeds; }
    bool SectionEnd() override { return ++ends, succeeds; }
    bool SectionProcess() override
    {
        backBuffer.Fill(FRAME_COLOUR);
        return ++frames, succeeds;
    }

    static constexpr uint16_t FRAME_COLOUR = 0x1234;

    int begins = 0;
    int ends = 0;
    int frames = 0;
    bool succeeds = true;
};
struct OtherScene : ProbeScene {
};

/// The application with its window, started in a folder of its own, before its first tick.
class GameTest : public testing::Test
{
protected:
    void SetUp() override
    {
        fake.Reset();
        fake.programPath = folder.Path() + "/tervalis";
        input = InputState{};
        lastError = 0;
        currentSection = nullptr;
        requestedSection = &scene;
        nextFrameTime = 0;
        captureScreen = false;
        isWindowed = true;
        ASSERT_TRUE(CreateGameWindow(nullptr));
    }
    void TearDown() override
    {
        if (fake.windowExists)
            DestroyWindow(gameWindow);
        CloseHandle(instanceMutex);
        instanceMutex = nullptr;
        EXPECT_EQ(fake.directDrawObjects, 0);
        EXPECT_EQ(fake.soundObjects, 0);
    }
    void TickAfter(uint32_t ms)
    {
        fake.now += ms;
        game.FrameTick();
    }

    TempFolder folder;
    ProbeScene scene;
    OtherScene other;
    ProbeScene twin;
};
}

TEST_F(GameTest, RunsOneFrameEvery40MsAndNeverMakesUpLateOnes)
{
    struct Step {
        uint32_t wait;
        int frames;
        const char* reason;
    };
    const Step steps[] = {
        { 0, 1, "the first tick runs at once" },
        { 39, 1, "39 ms are too early" },
        { 1, 2, "40 ms are due" },
        { 100, 3, "a late tick runs one frame" },
        { 39, 3, "the next deadline counts from the late tick" },
        { 1, 4, "and is 40 ms after it" },
    };
    for (const Step& step : steps) {
        TickAfter(step.wait);
        EXPECT_EQ(scene.frames, step.frames) << step.reason;
        EXPECT_EQ(fake.framesPresented, step.frames) << step.reason;
    }
}

TEST_F(GameTest, SwitchesScenesByClassWithinOneTick)
{
    TickAfter(0);
    EXPECT_EQ(scene.begins, 1);

    requestedSection = &twin;
    TickAfter(40);
    EXPECT_EQ(scene.ends + twin.begins, 0) << "an object of the same class is no other scene";
    EXPECT_EQ(scene.frames, 2);

    requestedSection = &other;
    TickAfter(40);
    EXPECT_EQ(scene.ends, 1);
    EXPECT_EQ(other.begins, 1);
    EXPECT_EQ(other.frames, 1);
    EXPECT_EQ(scene.frames, 2);
}

TEST_F(GameTest, AFailingSceneEndsTheProgramWithoutPresenting)
{
    lastError = ENGINE_LOAD_FILE;
    scene.succeeds = false;
    TickAfter(0);
    EXPECT_EQ(fake.framesPresented, 0);
    EXPECT_TRUE(fake.quitPosted);
    EXPECT_EQ(fake.messageBoxes, std::vector<std::string>{ "Error: Can not load file" });
    EXPECT_EQ(backBuffer.pixels, nullptr);
}

TEST_F(GameTest, CapturesTheFrameJustComposed)
{
    captureScreen = true;
    TickAfter(0);
    EXPECT_EQ(screenCopy.Row(479)[639], ProbeScene::FRAME_COLOUR);
    EXPECT_FALSE(captureScreen);
}

TEST_F(GameTest, StoresInputMessages)
{
    fake.Send(WM_MOUSEMOVE, 0, MAKELPARAM(-3, 479));
    EXPECT_EQ(input.mouseX, -3);
    EXPECT_EQ(input.mouseY, 479);

    fake.Send(WM_LBUTTONDOWN, 0, MAKELPARAM(7, -1));
    fake.Send(WM_RBUTTONDOWN, 0, MAKELPARAM(8, -2));
    EXPECT_TRUE(input.mouseLeftDown && input.mouseRightDown);
    EXPECT_EQ(input.mouseY, -2);
    fake.Send(WM_LBUTTONUP);
    fake.Send(WM_RBUTTONUP);
    EXPECT_FALSE(input.mouseLeftDown || input.mouseRightDown);

    fake.Send(WM_KEYDOWN, VK_LEFT);
    fake.Send(WM_KEYUP, VK_RIGHT);
    fake.Send(WM_CHAR, 0x1E9);
    EXPECT_EQ(input.lastKeyDown, VK_LEFT);
    EXPECT_EQ(input.lastKeyUp, VK_RIGHT);
    EXPECT_EQ(input.lastChar, static_cast<char>(0xE9));

    fake.Send(WM_SYSKEYDOWN, VK_F10);
    fake.Send(WM_SYSKEYUP, 'A');
    EXPECT_EQ(input.lastKeyDown, VK_LEFT) << "system keys are not the game's";
    EXPECT_EQ(input.lastKeyUp, VK_RIGHT);

    fake.Send(WM_KILLFOCUS);
    EXPECT_FALSE(input.hasFocus);
    fake.Send(WM_SETFOCUS);
    EXPECT_TRUE(input.hasFocus);
    EXPECT_EQ(fake.Send(WM_ERASEBKGND), 1);
}

TEST_F(GameTest, SwitchesBetweenWindowAndFullScreen)
{
    struct Step {
        UINT message;
        WPARAM wParam;
        bool windowed;
        const char* log;
    };
    const Step steps[] = {
        { WM_SYSKEYUP, VK_RETURN, false, "Windowed -> Full Screen\n" },
        { WM_SYSKEYUP, VK_RETURN, true, "Full Screen -> Windowed\n" },
        { WM_SYSCOMMAND, SC_MAXIMIZE, false, "Windowed -> Full Screen\n" },
        { WM_SYSKEYUP, VK_RETURN, true, "Full Screen -> Windowed\n" },
        { WM_NCLBUTTONDBLCLK, HTCAPTION, false, "Windowed -> Full Screen\n" },
        { WM_SYSCOMMAND, SC_MINIMIZE, false, "" },
    };
    std::string log = folder.ReadText("Log.txt");
    for (const Step& step : steps) {
        fake.Send(step.message, step.wParam);
        log += step.log;
        EXPECT_EQ(isWindowed, step.windowed);
        EXPECT_EQ(fake.fullScreen, !step.windowed);
        EXPECT_EQ(folder.ReadText("Log.txt"), log);
    }
}

TEST_F(GameTest, ARefusedSwitchGoesBackToTheWindow)
{
    fake.Fail("SetDisplayMode");
    fake.Send(WM_SYSKEYUP, VK_RETURN);
    EXPECT_TRUE(isWindowed);
    EXPECT_TRUE(fake.style & WS_CAPTION);
    EXPECT_EQ(fake.directDrawObjects, 0);
    EXPECT_EQ(lastError, ENGINE_SET_DISPLAY_MODE) << "kept, and shown at the end";
}

TEST_F(GameTest, DestroyingTheWindowEndsTheRunningScene)
{
    TickAfter(0);
    DestroyWindow(gameWindow);
    EXPECT_EQ(scene.ends, 1);
    EXPECT_TRUE(fake.quitPosted);
    EXPECT_TRUE(fake.messageBoxes.empty());
    EXPECT_TRUE(folder.ReadText("Log.txt").ends_with("CGame::Destroy\n"));
}

TEST(GameStart, ASecondCopyOrAFailedStartEndsTheProgram)
{
    struct Case {
        const char* failure;
        bool otherCopyRuns;
    };
    const Case cases[] = {
        { "", true },
        { "CreateMutexA", false },
        { "CreateWindowExA", false },
    };
    TempFolder folder;
    for (const Case& start : cases) {
        fake.Reset();
        fake.programPath = folder.Path() + "/tervalis";
        fake.otherCopyRuns = start.otherCopyRuns;
        fake.Fail(start.failure);
        EXPECT_EQ(RunGame(nullptr), 0) << start.failure;
        EXPECT_FALSE(fake.windowExists) << start.failure;
        EXPECT_TRUE(fake.messageBoxes.empty()) << start.failure;
        EXPECT_EQ(folder.Read("Log.txt"), "") << start.failure;
        if (instanceMutex)
            CloseHandle(instanceMutex);
        instanceMutex = nullptr;
    }
}
