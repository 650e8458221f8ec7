#include "platform/sdl/events.h"
#include "platform/sdl/idle.h"
#include "platform/sdl/messages.h"
#include "platform/sdl/native_window.h"

#include <optional>

namespace
{
std::optional<int> quitCode;

constexpr LPARAM ALT_HELD = 1 << 29;

LRESULT SystemCommand(HWND window, WPARAM command)
{
    const NativeWindow* native = WindowOf(window);
    return native && command == SC_CLOSE ? native->procedure(window, WM_CLOSE, 0, 0) : 0;
}

/// The message that is next, which stays in the queue. False when there is none.
bool FindMessage(MSG& message)
{
    CollectEvents();
    if (const MSG* due = DueMessage()) {
        message = *due;
        return true;
    }
    if (!quitCode)
        return false;
    message = {};
    message.message = WM_QUIT;
    message.wParam = static_cast<WPARAM>(*quitCode);
    return true;
}
}

void PostQuitMessage(int exitCode)
{
    quitCode = exitCode;
}

BOOL PeekMessageA(MSG* message, HWND, UINT, UINT, UINT)
{
    if (FindMessage(*message))
        return TRUE;
    Idle();
    return FindMessage(*message); // what came meanwhile is for the frame that begins now
}

BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last)
{
    while (!PeekMessageA(message, window, first, last, PM_NOREMOVE))
        EndFrameOfMessages(); // whoever waits here shows no frame meanwhile
    if (message->message == WM_QUIT) {
        quitCode.reset();
        return FALSE;
    }
    TakeDueMessage();
    return TRUE;
}

/// Characters come from the text input of the layout (keyboard.cpp), which puts them right behind their key.
BOOL TranslateMessage(const MSG* message)
{
    return message->message == WM_KEYDOWN || message->message == WM_SYSKEYDOWN;
}

LRESULT DispatchMessageA(const MSG* message)
{
    const NativeWindow* window = WindowOf(message->hwnd);
    return window ? window->procedure(message->hwnd, message->message, message->wParam, message->lParam) : 0;
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SYSKEYDOWN:
        if (wParam == VK_F4 && (lParam & ALT_HELD))
            PostToWindow(WM_SYSCOMMAND, SC_CLOSE, 0);
        break;
    case WM_SYSCOMMAND:
        return SystemCommand(window, wParam);
    case WM_CLOSE:
        DestroyWindow(window);
        break;
    default:
        break;
    }
    return 0;
}
