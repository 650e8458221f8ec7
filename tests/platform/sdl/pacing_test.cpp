#include "platform/sdl/events.h"
#include "platform/sdl/messages.h"
#include "platform/sdl/window_fixture.h"

#include <sstream>
#include <string>

namespace
{
/// Events, and what the game sees of them frame by frame. "L+5", "L-5": the left button at x = 5; "M9": a move there;
/// "w+", "w*", "w-": a key with its character goes down, repeats, goes up; "F": the focus goes.
/// Seen are the mouse's place where it was heard of, "L" while the button is down, the last key and character, and
/// "-W" for a key that was let go.
struct PacingCase {
    const char* events;
    std::vector<std::string> seen;
    const char* why;
};

class PacingTable : public WindowFixture, public testing::WithParamInterface<PacingCase>
{
protected:
    static void Push(const std::string& event)
    {
        const char what = event[0];
        if (what == 'L')
            return PushButton(event[1] == '+', event[2] - '0', 0);
        if (what == 'M')
            return PushMotion(event[1] - '0', 0);
        if (what == 'F')
            return PushWindowEvent(SDL_WINDOWEVENT_FOCUS_LOST);
        PushKey(event[1] != '-', static_cast<SDL_Scancode>(SDL_SCANCODE_A + what - 'a'), what);
        if (event[1] != '-')
            PushText(event.substr(0, 1).c_str());
    }

    void Poll()
    {
        for (CollectEvents(); const MSG* message = DueMessage(); TakeDueMessage())
            DispatchMessageA(message);
    }

    /// What the frame sees, as the game keeps it; then the frame has been shown.
    std::string ShowFrame()
    {
        std::string place;
        std::string key;
        std::string character;
        std::string rest;
        for (const Received& one : received) {
            if (one.message >= WM_MOUSEMOVE)
                place = std::to_string(LOWORD(one.lParam));
            if (one.message == WM_LBUTTONDOWN || one.message == WM_LBUTTONUP)
                isLeftDown = one.message == WM_LBUTTONDOWN;
            if (one.message == WM_KEYDOWN)
                key = static_cast<char>(one.wParam);
            if (one.message == WM_CHAR)
                character = static_cast<char>(one.wParam);
            if (one.message == WM_KILLFOCUS)
                rest += "F";
            if (one.message == WM_KEYUP)
                rest += { '-', static_cast<char>(one.wParam) };
        }
        received.clear();
        EndFrameOfMessages();
        return place + (isLeftDown ? "L" : "") + key + character + rest;
    }

    bool isLeftDown = false;
};
}

TEST_P(PacingTable, ShowsEachPressToOneFrame)
{
    constexpr int TIMES = 1000;
    for (int i = 0; i < TIMES; ++i) {
        std::istringstream events(GetParam().events);
        for (std::string event; events >> event;) {
            Push(event);
            for (int polls = i % 6; polls > 0; --polls) // up to 5 ms apart, or all at once
                Poll();
        }
        for (const std::string& seen : GetParam().seen) {
            Poll();
            ASSERT_EQ(ShowFrame(), seen) << GetParam().why << ", time " << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Events, PacingTable,
    testing::Values(PacingCase{ "M5 a+ L+6 a- L-6", { "6LAa", "6-A" }, "nothing waits where nothing collides" },
                    PacingCase{ "L+5 L-5", { "5L", "5" }, "a click shorter than a frame" },
                    PacingCase{ "L+5 M9 L-9", { "5L", "9" }, "a click acts where it was made" },
                    PacingCase{ "L+5 L-5 L+7 L-7", { "5L", "7L", "7" }, "a double click" },
                    PacingCase{ "w+ l+ w- l-", { "Ww", "Ll-W", "-L" }, "two players in one frame" },
                    PacingCase{ "a+ b+ a- c+ b- c-", { "Aa", "Bb-A", "Cc-B", "-C" }, "no letter of a name is lost" },
                    PacingCase{ "w+ w* l+ w* l- w-", { "Ww", "Ll", "-L-W" }, "auto-repeat does not wait" },
                    PacingCase{ "a+ b+ c+ d+ e+ f+ g+ a- b- c- d- e- f- g-",
                                { "Aa", "Dd", "Ee", "Ff", "Gg-A-B-C-D-E-F", "-G" },
                                "after a stall the oldest of many go" },
                    PacingCase{ "L+5 w+ F", { "5LWw", "5-WF" }, "the focus goes after what happened before" }));
