// Window messages and the events of SDL into the running program, from its start on.

#include "platform/sdl/messages.h"
#include "platform/sdl/events.h"
#include "platform/shell.h"
#include "support/session.h"
#include "target.h"

#include <SDL.h>
#include <iterator>
#include <memory>

/// No browser.
HINSTANCE ShellExecuteA(HWND, LPCSTR, LPCSTR, LPCSTR, LPCSTR, int)
{
    return nullptr;
}

namespace
{
constexpr int MOST_FRAMES = 120;
constexpr UINT MESSAGES[] = { WM_SETFOCUS,        WM_KILLFOCUS,  WM_CLOSE,     WM_ERASEBKGND,  WM_SETCURSOR,
                              WM_NCLBUTTONDBLCLK, WM_KEYDOWN,    WM_KEYUP,     WM_CHAR,        WM_SYSKEYDOWN,
                              WM_SYSKEYUP,        WM_SYSCOMMAND, WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP,
                              WM_RBUTTONDOWN,     WM_RBUTTONUP,  0x0400 };

void Push(SDL_Event event)
{
    SDL_PushEvent(&event);
}

void PushKey(Numbers& input)
{
    SDL_Event event{};
    event.type = input.Take8() % 2 == 0 ? SDL_KEYDOWN : SDL_KEYUP;
    event.key.repeat = input.Take8() % 2;
    event.key.keysym = { static_cast<SDL_Scancode>(input.Take16() % SDL_NUM_SCANCODES),
                         static_cast<SDL_Keycode>(input.Take32()), static_cast<Uint16>(input.Take16()), 0 };
    Push(event);
}

void PushText(Numbers& input)
{
    SDL_Event event{};
    event.type = SDL_TEXTINPUT;
    for (int i = 0, count = input.Take8() % SDL_TEXTINPUTEVENT_TEXT_SIZE; i < count; ++i)
        event.text.text[i] = static_cast<char>(input.Take8());
    Push(event);
}

void PushMouse(Numbers& input)
{
    SDL_Event event{};
    const uint8_t kind = input.Take8() % 3;
    event.type = kind == 0 ? SDL_MOUSEMOTION : kind == 1 ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP;
    const int x = static_cast<int16_t>(input.Take16());
    const int y = static_cast<int16_t>(input.Take16());
    if (kind == 0) {
        event.motion.x = x;
        event.motion.y = y;
    } else {
        event.button.button = input.Take8();
        event.button.x = x;
        event.button.y = y;
    }
    Push(event);
}

void PushWindow(Numbers& input)
{
    SDL_Event event{};
    event.type = input.Take8() == 0 ? SDL_QUIT : SDL_WINDOWEVENT;
    event.window.event = input.Take8() % 20;
    event.window.data1 = static_cast<int16_t>(input.Take16());
    event.window.data2 = static_cast<int16_t>(input.Take16());
    Push(event);
}

void Post(Numbers& input)
{
    const UINT message = MESSAGES[input.Take8() % std::size(MESSAGES)];
    const WPARAM wParam = input.Take16();
    PostToWindow(message, wParam, static_cast<LPARAM>(input.Take32()));
}

/// As the program's message loop, which waits for no frame here.
void Dispatch()
{
    CollectEvents();
    while (const MSG* due = DueMessage()) {
        const MSG message = *due;
        TakeDueMessage();
        DispatchMessageA(&message);
    }
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    constexpr void (*STEPS[])(Numbers&) = { PushKey, PushText, PushMouse, PushWindow, Post };
    static std::unique_ptr<Session> session; // starting takes long, so a run goes on until an input ends it
    if (!session || !session->IsRunning()) {
        session.reset();
        session = std::make_unique<Session>(Recording::FROM_START, 1);
    }
    Numbers input(data, size);
    for (int frame = 0; frame < MOST_FRAMES && session->IsRunning() && !input.IsAtEnd();) {
        const uint8_t step = input.Take8();
        if (step % 8 < std::size(STEPS)) {
            STEPS[step % 8](input);
            continue;
        }
        for (int count = step >> 3; count >= 0 && session->IsRunning(); --count, ++frame) {
            Dispatch();
            session->Frame();
            EndFrameOfMessages();
        }
    }
    SDL_FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);
    return 0;
}
