#include "app/game.h"

#include "app/frame_images.h"
#include "app/game_window.h"
#include "app/input.h"
#include "app/scenes.h"
#include "app/section.h"
#include "doubles/system.h"
#include "game/section_main.h"
#include "gfx/error.h"
#include "menu/section_menu.h"
#include "platform/sdl/told_frame.h"
#include "support/faults.h"
#include "support/program_fixture.h"

namespace
{
/// A scene that notes what is asked of it, b for begin, f for frame, e for end; `failing` is the one that fails.
struct ProbeScene : CSection {
    bool SectionBegin() override { return Note('b'); }
    bool SectionEnd() override { return Note('e'); }
    bool SectionProcess() override { return Note('f'); }
    bool Note(char what)
    {
        notes += what;
        return what != failing;
    }

    std::string notes;
    char failing = 0;
};
struct OtherScene : ProbeScene {
};

/// The program with a probe as its scene, before the first tick.
struct GameTest : ProgramFixture {
    void SetUp() override
    {
        ProgramFixture::SetUp();
        requestedSection = &scene;
        nextFrameTime = 0;
    }
    /// The scene's notes after a tick.
    std::string TickAfter(uint32_t ms)
    {
        clockMs += ms;
        game.FrameTick();
        return scene.notes;
    }

    ProbeScene scene;
    OtherScene other;
    ProbeScene twin;
};

/// Lets each plane that `load` asks for be missing, one after the other.
template <typename Load>
void LackEachPlane(Load load)
{
    bool loaded = false;
    for (int plane = 1; !loaded; ++plane) {
        ASSERT_LT(plane, 999);
        const int before = CallCount(Calls::PLANES);
        FailCall(Calls::PLANES, plane, false);
        loaded = load();
        EXPECT_EQ(loaded, CallCount(Calls::PLANES) - before < plane) << plane;
    }
    FailCall(Calls::PLANES, 0, false);
}
}

TEST_F(GameTest, RunsOneFrameEvery40MsAndNeverMakesUpLateOnes)
{
    EXPECT_EQ(TickAfter(0), "bf") << "the first tick runs at once";
    EXPECT_EQ(TickAfter(39), "bf") << "39 ms are too early";
    EXPECT_EQ(TickAfter(1), "bff") << "40 ms are due";
    EXPECT_EQ(TickAfter(100), "bfff") << "a late tick runs one frame";
    EXPECT_EQ(TickAfter(39), "bfff") << "the next deadline counts from the late tick";
    EXPECT_EQ(TickAfter(1), "bffff");

    EXPECT_EQ(game.WndProc(gameWindow, WM_ERASEBKGND, 0, 0), 1) << "the frame covers all";
    EXPECT_EQ(game.WndProc(gameWindow, WM_SETCURSOR, 0, 0), 0) << "scenes set the cursor";

    requestedSection = &twin;
    EXPECT_EQ(TickAfter(40), "bfffff") << "an object of the same class is no other scene";
    requestedSection = &other;
    EXPECT_EQ(TickAfter(40), "bfffffe");
    EXPECT_EQ(other.notes, "bf") << "within one tick";
    DestroyWindow(gameWindow);
    EXPECT_EQ(other.notes, "bfe");
    EXPECT_EQ(backBuffer.pixels, nullptr);
}

TEST_F(GameTest, AFailingSceneOperationEndsTheProgramWithoutPresenting)
{
    for (const char failing : { 'b', 'f', 'e' }) {
        TearDown();
        SetUp();
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

TEST_F(GameTest, AStartThatFailsLeavesNoWindow)
{
    EXPECT_EQ(RunGame(nullptr), 0) << "another copy runs";
    constexpr int GLOBAL_IMAGES = 5; // of one plane each
    for (int failing = 1; failing <= GLOBAL_IMAGES; ++failing) {
        session.reset();
        FailCall(Calls::PLANES, failing, false);
        testing::internal::CaptureStderr();
        EXPECT_THROW(session.emplace(Recording::FROM_START, 1), std::runtime_error) << failing;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "Error: Can not allocate memory\n") << failing;
        EXPECT_FALSE(nativeWindow.handle) << failing;
    }
    FailCall(Calls::PLANES, 0, false);
}

TEST_F(GameTest, TellsPadsWhoSteersHowAndWhatCanBeClicked)
{
    session.emplace(1, 1); // a game for two
    while (!sectionMain.pond.snake[0].SnakeIsSwimming())
        session->Frame();
    EndToldFrame();
    ASSERT_TRUE(Players().size() == 2 && Clickables().size() == 3);
    EXPECT_TRUE(Players()[0].isMoving && Players()[1].keys.left == 'A' && Clickables()[2].bottom == 433 + 14);
    input.lastKeyDown = VK_SPACE;
    session->Frame();
    session->Frame();
    EndToldFrame();
    EXPECT_TRUE(Players().empty() && Clickables().size() == 2) << "it pauses";
}

TEST_F(GameTest, LoadingMissesEachPlaneThatCannotBeHad)
{
    CPond& pond = sectionMain.pond;
    const auto lackEachPlaneOf = [](auto& owner) {
        for (bool done = false; !done && !HasFatalFailure();)
            LackEachPlane([&] { return owner.DataLoad(done); });
    };
    lackEachPlaneOf(sectionMenu);
    lackEachPlaneOf(pond);
    lackEachPlaneOf(pond.statusBar);
    LackEachPlane([&] { return pond.snake[1].SnakeInit(100, &pond, 2, 'W', 'S', 'A', 'D'); });
    LackEachPlane([] { return sectionMain.SectionBegin(); });
    sectionMain.SectionEnd();
    LackEachPlane([&] { return pond.snake[1].player == 2 && pond.snake[1].SnakeInit(100, &pond, 1, 1, 2, 3, 4); });
}
