#include "platform/frame_hints.h"
#include "platform/sdl/events.h"
#include "platform/sdl/pad_pointer.h"
#include "platform/sdl/present.h"
#include "platform/sdl/window_fixture.h"

#include <SDL.h>
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
        { 15999, 0, Way::NONE, Way::NONE, "in the dead zone" },
        { 16000, 0, Way::NONE, Way::RIGHT, "just out of it" },
        { -32768, 20000, Way::NONE, Way::LEFT, "to the very edge" },
        { 5000, -20000, Way::NONE, Way::UP, "the stronger way counts" },
        { 10000, 0, Way::RIGHT, Way::RIGHT, "not quite back" },
        { 9999, 0, Way::RIGHT, Way::NONE, "back" },
        { 16000, 20000, Way::RIGHT, Way::RIGHT, "a little beyond the diagonal" },
        { 16000, 20001, Way::RIGHT, Way::DOWN, "well beyond it" },
        { 0, -32768, Way::DOWN, Way::UP, "from edge to edge" },
    };
    for (const auto& row : cases)
        EXPECT_EQ(StickWay(row.x, row.y, row.held), row.way) << row.why;
}

struct PadsTest : WindowFixture {
    static SDL_Joystick* Plug()
    {
        SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1"); // the driver without a screen has no focus to give
        const int device = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, SDL_CONTROLLER_AXIS_MAX,
                                                     SDL_CONTROLLER_BUTTON_MAX, 0);
        RunFrames();
        return SDL_JoystickOpen(device);
    }
    static std::string Tilt(SDL_Joystick* pad, Sint16 x, Sint16 y)
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
        const std::string heard = RunFrames();
        SDL_JoystickSetVirtualButton(pad, button, SDL_RELEASED);
        SDL_JoystickUpdate();
        return heard;
    }
    /// A frame in which two players can be steered, both on the move.
    static std::string PlayFrame()
    {
        TellClickable({ 0, 0, 639, 479 }); // A is no click on it
        TellSteering({ VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT }, true);
        TellSteering({ 'W', 'S', 'A', 'D' }, true);
        PresentFrame();
        return RunFrames();
    }
};

TEST_F(PadsTest, SteerTheirPlayersAndPauseWhenTheyGo)
{
    SDL_Joystick* const pads[] = { Plug(), Plug(), Plug() };
    PlayFrame();
    EXPECT_EQ(Tilt(pads[0], 32767, 0), "+<39> | -<39>");
    EXPECT_EQ(Tilt(pads[0], 32000, 0), "") << "a push is one key";
    EXPECT_EQ(Tilt(pads[1], 0, 32767), "+S | -S");
    EXPECT_EQ(Tilt(pads[2], 0, 32767), "") << "it has no player";
    EXPECT_EQ(Press(pads[1], SDL_CONTROLLER_BUTTON_DPAD_LEFT), "+A | -A");
    EXPECT_EQ(Press(pads[0], SDL_CONTROLLER_BUTTON_START), "+<32> '<32> | -<32>");
    EXPECT_EQ(Press(pads[0], SDL_CONTROLLER_BUTTON_BACK), "+<27> '<27> | -<27>");
    EXPECT_EQ(Press(pads[1], SDL_CONTROLLER_BUTTON_A), "+<13> '<13> | -<13>");

    Push("+Escape");
    SDL_JoystickDetachVirtual(0);
    CollectEvents();
    EXPECT_EQ(PlayFrame(), "+<32> | -<32> +<27> '<27>") << "the pause comes before all that waits";
    PresentFrame();
    EXPECT_EQ(RunFrames(), "") << "without the focus nothing is told";
    EXPECT_EQ(PlayFrame(), "+<32> | -<32>") << "until the game stands";
    TellSteering({ 'I', 'K', 'J', 'L' }, false);
    PresentFrame();
    EXPECT_EQ(Tilt(pads[1], 0, -32767), "+I | -I") << "a player alone may take either pad";
    EXPECT_EQ(PlayFrame(), "") << "and not again when it goes on";
    EXPECT_EQ(Tilt(pads[2], 0, -32767), "+<38> | -<38>") << "what waited takes the free place";
}

TEST_F(PadsTest, GoFromButtonToButtonOfTheMainMenuAndClick)
{
    enum { HOME, ONE, TWO, RANKING, OPTIONS, HELP, QUIT };
    constexpr RECT boxes[] = {
        { 197, 457, 442, 479 }, { 116, 158, 288, 194 }, { 359, 158, 513, 194 }, { 76, 267, 187, 303 },
        { 460, 267, 554, 303 }, { 173, 379, 233, 415 }, { 407, 379, 467, 415 },
    };
    const std::pair<Way, int> steps[] = {
        { Way::DOWN, RANKING }, { Way::RIGHT, OPTIONS }, { Way::UP, TWO },    { Way::DOWN, OPTIONS },
        { Way::DOWN, QUIT },    { Way::LEFT, HELP },     { Way::DOWN, HOME }, { Way::UP, HELP },
        { Way::UP, RANKING },   { Way::UP, ONE },        { Way::RIGHT, TWO },
    };
    SDL_Joystick* const pad = Plug();
    for (const RECT& box : boxes)
        TellClickable(box);
    PresentFrame();
    Push("to20,20");
    RunFrames();
    EXPECT_EQ(Press(pad, SDL_CONTROLLER_BUTTON_A), "+<13> '<13> | -<13>") << "on nothing";
    EXPECT_EQ(Tilt(pad, 0, -32767).substr(0, 9), "to202,176") << "the nearest"; // SDL tells of the move too
    Push("to288,194");                                                          // its edges belong to it
    RunFrames();
    EXPECT_EQ(Tilt(pad, -32767, 0), "") << "there is nothing";
    for (const auto& [way, expected] : steps) {
        Press(pad, SDL_CONTROLLER_BUTTON_DPAD_UP + static_cast<int>(way));
        POINT shown = {};
        SDL_GetMouseState(&shown.x, &shown.y);
        ASSERT_EQ(BoxAt(boxes, shown), &boxes[expected]);
    }
    EXPECT_EQ(Press(pad, SDL_CONTROLLER_BUTTON_A), "L+436,176 | L-436,176");
    EXPECT_EQ(Tilt(pad, 32767, 0), "") << "nothing there either";
}
}
