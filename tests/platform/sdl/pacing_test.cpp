#include "platform/sdl/events.h"
#include "platform/sdl/messages.h"
#include "platform/sdl/window_fixture.h"

#include <iterator>
#include <map>
#include <sstream>
#include <string>

namespace
{
/// Events, and what the game is given of them frame by frame. "L+5", "L-5": the left button at x = 5; "M9": a move
/// there; "+W", "*W", "-W": a key goes down, repeats, goes up, "w" its character; "F": the focus goes.
const struct {
    const char* events;
    std::vector<std::string> frames;
    const char* why;
} cases[] = {
    { "M5 +A L+6 -A L-6", { "M5+AaL+6", "-AL-6" }, "nothing waits where nothing collides" },
    { "L+5 L-5", { "L+5", "L-5" }, "a click shorter than a frame" },
    { "L+5 M9 L-9", { "L+5", "M9L-9" }, "a click acts where it was made" },
    { "L+5 L-5 L+7 L-7", { "L+5", "L-5L+7", "L-7" }, "a double click" },
    { "+W +L -W -L", { "+Ww", "+Ll-W", "-L" }, "two players in one frame" },
    { "+A +B -A +C -B -C", { "+Aa", "+Bb-A", "+Cc-B", "-C" }, "no letter of a name is lost" },
    { "+W *W +L *W -L -W", { "+Ww", "+Ll", "-L-W" }, "auto-repeat does not wait" },
    { "+A +B +C +D +E +F +G -A -B -C -D -E -F -G",
      { "+Aa", "+Dd", "+Ee", "+Ff", "+Gg-A-B-C-D-E-F", "-G" },
      "after a stall the oldest of many go" },
    { "L+5 +W F", { "L+5+Ww", "-WL-5F" }, "the focus goes after what happened before" },
};

class PacingTest : public WindowFixture
{
protected:
    static void Push(const std::string& event)
    {
        if (event == "F")
            return PushWindowEvent(SDL_WINDOWEVENT_FOCUS_LOST);
        if (event[0] == 'L')
            return PushMouse(event[1] == '+' ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP, event[2] - '0', 0);
        if (event[0] == 'M')
            return PushMouse(SDL_MOUSEMOTION, event[1] - '0', 0);
        PushKey(event[0] != '-', static_cast<SDL_Scancode>(SDL_SCANCODE_A + event[1] - 'A'));
        if (event[0] != '-')
            PushText(std::string(1, static_cast<char>(event[1] - 'A' + 'a')).c_str());
    }

    void Poll()
    {
        for (CollectEvents(); const MSG* message = DueMessage(); TakeDueMessage())
            DispatchMessageA(message);
    }

    /// What the frame was given; then it has been shown.
    std::string ShowFrame()
    {
        const std::map<UINT, std::string> signs = { { WM_KEYDOWN, "+" },      { WM_CHAR, "" },
                                                    { WM_KEYUP, "-" },        { WM_MOUSEMOVE, "M" },
                                                    { WM_LBUTTONDOWN, "L+" }, { WM_LBUTTONUP, "L-" } };
        std::string given;
        for (const MSG& one : received) {
            const bool isMouse = one.message >= WM_MOUSEMOVE;
            const int what = isMouse ? '0' + LOWORD(one.lParam) : static_cast<int>(one.wParam);
            given += one.message == WM_KILLFOCUS ? "F" : signs.at(one.message) + static_cast<char>(what);
        }
        received.clear();
        EndFrameOfMessages();
        return given;
    }
};
}

TEST_F(PacingTest, ShowsEachPressToOneFrame)
{
    constexpr int TIMES = 1000;
    for (int i = 0; i < TIMES * static_cast<int>(std::size(cases)); ++i) {
        const auto& row = cases[i / TIMES];
        std::istringstream events(row.events);
        for (std::string event; events >> event;) {
            Push(event);
            for (int polls = i % 6; polls > 0; --polls) // up to 5 ms apart, or all at once
                Poll();
        }
        for (const std::string& frame : row.frames) {
            Poll();
            ASSERT_EQ(ShowFrame(), frame) << row.why << ", time " << i;
        }
    }
}
