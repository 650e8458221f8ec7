#include "platform/sdl/messages.h"

#include "platform/sdl/native_window.h"

#include <algorithm>
#include <deque>

namespace
{
/// Presses that wait for later frames. Only a stall brings more at once; then the oldest go, for what the player did
/// last matters most, and the game is up to date again this many frames later.
constexpr int MOST_WAITING_PRESSES = 4;

constexpr LPARAM WAS_DOWN = 1 << 30;

/// What the frame in the making sees already.
struct SeenPresses {
    WPARAM key = 0; ///< virtual-key code, 0 none
    bool character = false;
    bool button = false;
};

std::deque<MSG> queue;
SeenPresses seen;

bool IsRepeat(const MSG& message)
{
    return (message.message == WM_KEYDOWN || message.message == WM_CHAR) && (message.lParam & WAS_DOWN);
}

bool IsPress(const MSG& message)
{
    return message.message == WM_KEYDOWN || message.message == WM_LBUTTONDOWN || message.message == WM_RBUTTONDOWN;
}

bool IsNoCharacter(const MSG& message)
{
    return message.message != WM_CHAR;
}

/// Whether the message would undo or replace a press that the frame in the making is to see. A move takes a click
/// elsewhere; a key waits for a character too, so as to stay together with its own.
bool Collides(const MSG& message)
{
    switch (message.message) {
    case WM_KEYDOWN:
        return seen.key != 0 || seen.character;
    case WM_KEYUP:
    case WM_SYSKEYUP:
        return seen.key == message.wParam;
    case WM_CHAR:
        return seen.character;
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
        return seen.button;
    default:
        return false;
    }
}

/// Drops the press that has waited longest, with its characters. Its release does no harm.
void DropOldestPress()
{
    const auto press = std::find_if(queue.begin(), queue.end(), IsPress);
    queue.erase(press, std::find_if(press + 1, queue.end(), IsNoCharacter));
}

void DropWhatMustNotWait()
{
    std::erase_if(queue, IsRepeat);
    while (std::count_if(queue.begin(), queue.end(), IsPress) > MOST_WAITING_PRESSES)
        DropOldestPress();
}
}

void PostToWindow(UINT message, WPARAM wParam, LPARAM lParam)
{
    queue.push_back({ NativeHandle(), message, wParam, lParam, 0, {} });
}

void PostFirstToWindow(UINT message, WPARAM wParam, LPARAM lParam)
{
    queue.push_front({ NativeHandle(), message, wParam, lParam, 0, {} });
}

const MSG* DueMessage()
{
    if (!queue.empty() && Collides(queue.front()))
        DropWhatMustNotWait();
    return queue.empty() || Collides(queue.front()) ? nullptr : &queue.front();
}

void TakeDueMessage()
{
    const MSG message = queue.front();
    queue.pop_front();
    if (IsRepeat(message))
        return;
    if (message.message == WM_KEYDOWN)
        seen.key = message.wParam;
    else if (message.message == WM_CHAR)
        seen.character = true;
    else if (IsPress(message))
        seen.button = true;
}

void EndFrameOfMessages()
{
    seen = {};
}

void DropMessages()
{
    queue.clear();
    seen = {};
}
