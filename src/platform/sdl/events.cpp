#include "platform/sdl/events.h"

#include "platform/sdl/keyboard.h"
#include "platform/sdl/messages.h"
#include "platform/sdl/mouse.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/pads.h"
#include "platform/sdl/window_state.h"

#include <algorithm>
#include <atomic>

namespace
{
std::atomic<bool> focused = true;

void ReleaseAll()
{
    ReleaseHeldKeys();
    ReleaseHeldButtons();
}

void LoseFocus()
{
    focused = false;
    ReleaseAll();
    PostToWindow(WM_KILLFOCUS, 0, 0);
}

void GainFocus()
{
    focused = true;
    PostToWindow(WM_SETFOCUS, 0, 0);
}

/// SDL releases every key itself before it tells that the focus has gone. Taken for real, such a release of Alt+Enter
/// would switch the display; LoseFocus releases the keys instead.
bool IsFocusAboutToGo()
{
    constexpr int MOST = 16;
    SDL_Event waiting[MOST];
    const int count = SDL_PeepEvents(waiting, MOST, SDL_PEEKEVENT, SDL_WINDOWEVENT, SDL_WINDOWEVENT);
    const auto losesFocus = [](const SDL_Event& event) { return event.window.event == SDL_WINDOWEVENT_FOCUS_LOST; };
    return count > 0 && std::any_of(waiting, waiting + count, losesFocus);
}

/// The maximise box and a double click on the title are commands to the game, which covers the whole screen then.
void Maximise()
{
    SDL_RestoreWindow(nativeWindow.handle);
    PostToWindow(WM_SYSCOMMAND, SC_MAXIMIZE, 0);
}

void HandleWindowEvent(const SDL_WindowEvent& event)
{
    switch (event.event) {
    case SDL_WINDOWEVENT_FOCUS_GAINED:
        return GainFocus();
    case SDL_WINDOWEVENT_FOCUS_LOST:
        return LoseFocus();
    case SDL_WINDOWEVENT_MINIMIZED:
        return ReleaseAll();
    case SDL_WINDOWEVENT_CLOSE:
        return PostToWindow(WM_SYSCOMMAND, SC_CLOSE, 0);
    case SDL_WINDOWEVENT_MAXIMIZED:
        return Maximise();
    case SDL_WINDOWEVENT_RESIZED:
    case SDL_WINDOWEVENT_DISPLAY_CHANGED: // whose pixels may be of another size
        return KeepClientSize();
    case SDL_WINDOWEVENT_SIZE_CHANGED:
    case SDL_WINDOWEVENT_EXPOSED:
        return nativeWindow.view.ShowAll();
    default:
        break;
    }
}

void HandleEvent(const SDL_Event& event)
{
    switch (event.type) {
    case SDL_WINDOWEVENT:
        return HandleWindowEvent(event.window);
    case SDL_KEYDOWN:
        return HandleKey(event.key);
    case SDL_KEYUP:
        return IsFocusAboutToGo() ? void() : HandleKey(event.key);
    case SDL_TEXTINPUT:
        return HandleText(event.text.text);
    case SDL_MOUSEMOTION:
        return HandleMotion(event.motion);
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        return HandleButton(event.button);
    case SDL_QUIT: // the session ends or a signal asks the program to
        return PostToWindow(WM_SYSCOMMAND, SC_CLOSE, 0);
    default:
        return HandlePad(event);
    }
}
}

bool WindowHasFocus()
{
    return focused;
}

void CollectEvents()
{
    if (!nativeWindow.handle)
        return;
    PollPads();
    // Not SDL_PollEvent: after a wait (message_loop.cpp) it stops before what came during the wait.
    SDL_PumpEvents();
    SDL_Event event;
    while (nativeWindow.handle && SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) > 0)
        HandleEvent(event);
    FindMissedReleases();
}

void ForgetEvents()
{
    ReleaseAll();
    DropMessages();
    focused = true;
}
