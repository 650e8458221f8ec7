#include "platform/frame_hints.h"
#include "platform/sdl/events.h"
#include "platform/sdl/pad_pointer.h"
#include "platform/sdl/present.h"
#include "platform/sdl/window_fixture.h"

#include <SDL.h>
#include <cstdlib>
#include <string>
#include <utility>

namespace
{
TEST(Stick, StaysWithAWayNearItsBoundaries)
{
    const struct {
        int x;
        int y;
        Way held;
        Way way;
        const char* why;
    } cases[] = {
        { 0, 0, Way::NONE, Way::NONE, "at rest" },
        { 15999, 0, Way::NONE, Way::NONE, "in the dead zone" },
        { 16000, 0, Way::NONE, Way::RIGHT, "just out of it" },
        { -32768, 20000, Way::NONE, Way::LEFT, "to the very edge" },
        { 5000, -20000, Way::NONE, Way::UP, "the stronger way counts" },
        { 10000, 0, Way::RIGHT, Way::RIGHT, "not quite back" },
        { 9999, 0, Way::RIGHT, Way::NONE, "back" },
        { 16000, 20000, Way::RIGHT, Way::RIGHT, "a little beyond the diagonal" },
        { 16000, 20001, Way::RIGHT, Way::DOWN, "well beyond it" },
        { 20001, 16000, Way::DOWN, Way::RIGHT, "the same on the way back" },
        { 9999, 15000, Way::RIGHT, Way::NONE, "another way in the dead zone" },
        { 0, -32768, Way::DOWN, Way::UP, "from edge to edge" },
    };
    for (const auto& row : cases)
        EXPECT_EQ(StickWay(row.x, row.y, row.held), row.way) << row.why;
}

/// The main menu's buttons and a way between them.
TEST(PadPointer, GoesToTheNextBox)
{
    enum { HOME, ONE, TWO, RANKING, OPTIONS, HELP, QUIT, NOWHERE };
    constexpr RECT boxes[] = {
        { 197, 457, 442, 479 }, { 116, 158, 288, 194 }, { 359, 158, 513, 194 }, { 76, 267, 187, 303 },
        { 460, 267, 554, 303 }, { 173, 379, 233, 415 }, { 407, 379, 467, 415 },
    };
    const std::pair<Way, int> steps[] = {
        { Way::RIGHT, ONE }, // from elsewhere, whatever the way
        { Way::LEFT, NOWHERE }, { Way::DOWN, RANKING }, { Way::RIGHT, OPTIONS }, { Way::UP, TWO },
        { Way::DOWN, OPTIONS }, { Way::DOWN, QUIT },    { Way::LEFT, HELP },     { Way::DOWN, HOME },
        { Way::UP, HELP },      { Way::UP, RANKING },   { Way::UP, ONE },
    };
    POINT pointer = { 20, 20 };
    for (const auto& [way, expected] : steps) {
        const RECT* const next = NextBox(boxes, pointer, way);
        ASSERT_EQ(next ? static_cast<int>(next - boxes) : +NOWHERE, expected);
        if (next)
            pointer = { next->right, next->bottom }; // its edges belong to it
    }
}

class PadsTest : public WindowFixture
{
protected:
    using WindowFixture::Push;
    void SetUp() override
    {
        SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1"); // the driver without a screen has no focus to give
        WindowFixture::SetUp();
    }
    static SDL_Joystick* Plug()
    {
        SDL_Joystick* const pad = SDL_JoystickOpen(SDL_JoystickAttachVirtual(
            SDL_JOYSTICK_TYPE_GAMECONTROLLER, SDL_CONTROLLER_AXIS_MAX, SDL_CONTROLLER_BUTTON_MAX, 0));
        RunFrames();
        return pad;
    }
    static std::string Push(SDL_Joystick* pad, Sint16 x, Sint16 y)
    {
        SDL_JoystickSetVirtualAxis(pad, SDL_CONTROLLER_AXIS_LEFTX, x);
        SDL_JoystickSetVirtualAxis(pad, SDL_CONTROLLER_AXIS_LEFTY, y);
        SDL_JoystickUpdate();
        return RunFrames();
    }
    static std::string Press(SDL_Joystick* pad, int button)
    {
        SDL_JoystickSetVirtualButton(pad, button, SDL_PRESSED);
        SDL_JoystickUpdate();
        SDL_JoystickSetVirtualButton(pad, button, SDL_RELEASED);
        SDL_JoystickUpdate();
        return RunFrames();
    }
    /// A frame in which two players can be steered, both on the move.
    static void PlayFrame()
    {
        TellClickable({ 10, 433, 49, 447 });
        TellSteering({ VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT }, true);
        TellSteering({ 'W', 'S', 'A', 'D' }, true);
        PresentFrame();
    }
    static void PageFrame()
    {
        TellClickable({ 10, 20, 30, 40 });
        TellClickable({ 110, 20, 130, 40 });
        PresentFrame();
    }
};

TEST_F(PadsTest, SteerTheirPlayersAndPauseWhenTheyGo)
{
    SDL_Joystick* const first = Plug();
    SDL_Joystick* const second = Plug();
    SDL_Joystick* const third = Plug();
    PlayFrame();
    EXPECT_EQ(Push(first, 32767, 0), "+<39> | -<39>");
    EXPECT_EQ(Push(first, 32000, 0), "") << "a push is one key";
    EXPECT_EQ(Push(second, 0, 32767), "+S | -S");
    EXPECT_EQ(Push(third, 0, 32767), "") << "it has no player";
    EXPECT_EQ(Press(second, SDL_CONTROLLER_BUTTON_DPAD_LEFT), "+A | -A");
    EXPECT_EQ(Press(first, SDL_CONTROLLER_BUTTON_START), "+<32> '<32> | -<32>");
    EXPECT_EQ(Press(first, SDL_CONTROLLER_BUTTON_BACK), "+<27> '<27> | -<27>");
    EXPECT_EQ(Press(second, SDL_CONTROLLER_BUTTON_A), "+<13> '<13> | -<13>");

    Push("+Escape");
    SDL_JoystickDetachVirtual(0);
    CollectEvents();
    PlayFrame();
    EXPECT_EQ(RunFrames(), "+<32> | -<32> +<27> '<27>") << "the pause comes before all that waits";
    PresentFrame();
    EXPECT_EQ(RunFrames(), "") << "without the focus nothing is told";
    PlayFrame();
    EXPECT_EQ(RunFrames(), "+<32> | -<32>") << "until the game stands";
    PageFrame();
    PlayFrame();
    EXPECT_EQ(RunFrames(), "") << "and not again when it goes on";
    EXPECT_EQ(Push(third, 0, -32767), "+<38> | -<38>") << "what waited takes the free place";
}

TEST_F(PadsTest, ServeAPageWithoutKeyboardAndMouse)
{
    SDL_Joystick* const pad = Plug();
    PageFrame();
    Push("to300,300");
    RunFrames();
    EXPECT_EQ(Press(pad, SDL_CONTROLLER_BUTTON_A), "+<13> '<13> | -<13>") << "on nothing";
    EXPECT_EQ(Push(pad, 0, -32767).substr(0, 8), "to120,30") << "the nearest"; // SDL tells of the move too
    EXPECT_EQ(Press(pad, SDL_CONTROLLER_BUTTON_DPAD_LEFT).substr(0, 7), "to20,30");
    EXPECT_EQ(Press(pad, SDL_CONTROLLER_BUTTON_A), "L+20,30 | L-20,30");
    int x = 0;
    SDL_GetMouseState(&x, nullptr);
    EXPECT_EQ(x, 20) << "the pointer is to be seen there";
}

TEST_F(PadsTest, KnowWhatThePlayerSaysOfTheirButtons)
{
    char id[33];
    SDL_JoystickGetGUIDString(SDL_JoystickGetGUID(Plug()), id, sizeof id);
    TearDown();
    const std::string anyRevision = std::string(id).replace(4, 4, "0000");
    setenv("SDL_GAMECONTROLLERCONFIG", (anyRevision + ",Pad,start:b9,").c_str(), 1);
    SetUp();
    SDL_JoystickSetVirtualButton(Plug(), 9, SDL_PRESSED);
    std::string heard;
    while (heard.empty()) // until the pad is polled
        heard = RunFrames();
    EXPECT_EQ(heard, "+<32> '<32> | -<32>");
    unsetenv("SDL_GAMECONTROLLERCONFIG");
}
}
