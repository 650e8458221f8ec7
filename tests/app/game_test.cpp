#include "app/game.h"

#include "app/frame_images.h"
#include "app/game_window.h"
#include "app/input.h"
#include "app/scenes.h"
#include "app/section.h"
#include "doubles/directx.h"
#include "doubles/system.h"
#include "gfx/display.h"
#include "gfx/error.h"
#include "platform/sdl/native_window.h"
#include "support/allocations.h"
#include "support/program_fixture.h"

namespace
{
/// A scene that notes what is asked of it, b for begin, f for frame, e for end; `failing` is the one that fails.
struct ProbeScene : CSection {
    bool SectionBegin() override { return Note('b'); }
    bool SectionEnd() override { return Note('e'); }
    bool SectionProcess() override
    {
        backBuffer.Fill(FRAME_COLOUR);
        return Note('f');
    }
    bool Note(char what)
    {
        notes += what;
        return what != failing;
    }

    static constexpr uint16_t FRAME_COLOUR = 0x1082; // equal in every conversion

    std::string notes;
    char failing = 0;
};
struct OtherScene : ProbeScene {
};

/// The program with a probe as its scene, before the first tick.
class GameTest : public ProgramFixture
{
protected:
    void SetUp() override
    {
        ProgramFixture::SetUp();
        requestedSection = &scene;
    }
    /// The scene's notes after a tick.
    std::string TickAfter(uint32_t ms)
    {
        systemDouble.now += ms;
        game.FrameTick();
        return scene.notes;
    }

    ProbeScene scene;
    OtherScene other;
    ProbeScene twin;
};
}

TEST_F(GameTest, RunsOneFrameEvery40MsAndNeverMakesUpLateOnes)
{
    captureScreen = true;
    EXPECT_EQ(TickAfter(0), "bf") << "the first tick runs at once";
    EXPECT_EQ(WindowPixel(639, 479), ProbeScene::FRAME_COLOUR);
    EXPECT_EQ(screenCopy.Row(479)[639], ProbeScene::FRAME_COLOUR);
    EXPECT_FALSE(captureScreen);
    EXPECT_EQ(TickAfter(39), "bf") << "39 ms are too early";
    EXPECT_EQ(TickAfter(1), "bff") << "40 ms are due";
    EXPECT_EQ(TickAfter(100), "bfff") << "a late tick runs one frame";
    EXPECT_EQ(TickAfter(39), "bfff") << "the next deadline counts from the late tick";
    EXPECT_EQ(TickAfter(1), "bffff");

    requestedSection = &twin;
    EXPECT_EQ(TickAfter(40), "bfffff") << "an object of the same class is no other scene";
    requestedSection = &other;
    EXPECT_EQ(TickAfter(40), "bfffffe");
    EXPECT_EQ(other.notes, "bf") << "within one tick";
    DestroyWindow(gameWindow);
    EXPECT_EQ(other.notes, "bfe");
    EXPECT_TRUE(Log().ends_with("CGame::Destroy\n"));
    EXPECT_EQ(backBuffer.pixels, nullptr);
}

TEST_F(GameTest, AFailingSceneOperationEndsTheProgramWithoutPresenting)
{
    for (const char failing : { 'b', 'f', 'e' }) {
        if (failing != 'b') {
            ProgramFixture::TearDown();
            SetUp();
        }
        scene.notes.clear();
        scene.failing = failing;
        lastError = ENGINE_LOAD_FILE;
        testing::internal::CaptureStderr();
        if (failing == 'e') {
            TickAfter(0);
            requestedSection = &other;
        }
        TickAfter(40);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "Error: Can not load file\n") << failing;
        EXPECT_EQ(other.notes, failing == 'e' ? "e" : "") << failing;
        EXPECT_FALSE(nativeWindow.handle) << failing;
    }
}

TEST_F(GameTest, StoresInputMessages)
{
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(-3, 479));
    EXPECT_EQ(input.mouseX, -3);
    EXPECT_EQ(input.mouseY, 479);
    const struct {
        UINT message;
        bool left, right;
    } buttons[] = { { WM_LBUTTONDOWN, true, false },
                    { WM_RBUTTONDOWN, true, true },
                    { WM_LBUTTONUP, false, true },
                    { WM_RBUTTONUP, false, false } };
    for (const auto& [message, left, right] : buttons) {
        Send(message, 0, MAKELPARAM(static_cast<int>(message), -2));
        EXPECT_EQ(input.mouseLeftDown, left);
        EXPECT_EQ(input.mouseRightDown, right);
        EXPECT_EQ(input.mouseX, static_cast<int>(message));
        EXPECT_EQ(input.mouseY, -2);
    }
    Send(WM_KEYDOWN, VK_LEFT);
    Send(WM_KEYUP, VK_RIGHT);
    Send(WM_CHAR, 0x1E9);
    Send(WM_SYSKEYDOWN, VK_F10); // system keys are not the game's
    Send(WM_SYSKEYUP, 'A');
    EXPECT_EQ(input.lastKeyDown, VK_LEFT);
    EXPECT_EQ(input.lastKeyUp, VK_RIGHT);
    EXPECT_EQ(input.lastChar, static_cast<char>(0xE9));
    Send(WM_KILLFOCUS);
    EXPECT_FALSE(input.hasFocus);
    Send(WM_SETFOCUS);
    EXPECT_TRUE(input.hasFocus);
    EXPECT_EQ(Send(WM_ERASEBKGND), 1);
    EXPECT_EQ(Send(WM_SETCURSOR), 0);
}

TEST_F(GameTest, AStartThatFailsLeavesNoWindow)
{
    constexpr int GLOBAL_IMAGES = 5; // of one plane each
    for (int failing = 1; failing <= GLOBAL_IMAGES + 1; ++failing) {
        ProgramFixture::TearDown();
        FailPlane(failing);
        testing::internal::CaptureStderr();
        EXPECT_EQ(CreateGameWindow(nullptr), failing > GLOBAL_IMAGES) << failing;
        EXPECT_EQ(nativeWindow.handle != nullptr, failing > GLOBAL_IMAGES) << failing;
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  failing > GLOBAL_IMAGES ? "" : "Error: Can not allocate memory\n");
        lastError = ENGINE_NO_ERROR;
    }
    FailPlane(0);
    const std::string log = Log();
    EXPECT_EQ(RunGame(nullptr), 0) << "another copy runs";
    EXPECT_EQ(Log(), log) << "whose log stays";
}
