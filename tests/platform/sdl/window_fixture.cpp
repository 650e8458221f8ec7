#include "platform/sdl/window_fixture.h"

#include "gfx/display.h"
#include "platform/sdl/messages.h"

#include <cstdlib>

LRESULT WindowFixture::Procedure(HWND target, UINT message, WPARAM wParam, LPARAM lParam)
{
    received.push_back({ message, wParam, lParam });
    if (message != WM_DESTROY)
        return DefWindowProcA(target, message, wParam, lParam);
    PostQuitMessage(0);
    return 0;
}

void WindowFixture::SetUp()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_RENDER_DRIVER", "software", 1);
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    RegisterClassA(&windowClass);
    window = CreateWindowExA(0, "Test", "Test", 0, 0, 0, 640, 480, nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(DisplaySetMode(window, 640, 480, true));
    RunMessages();
    received.clear();
}

void WindowFixture::TearDown()
{
    DisplayRelease();
    DestroyWindow(window);
    RunMessages();
}

bool WindowFixture::RunMessages()
{
    MSG message = {};
    for (size_t before = received.size() + 1; before != received.size(); EndFrameOfMessages()) {
        before = received.size();
        while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            if (!GetMessageA(&message, nullptr, 0, 0))
                return true;
            DispatchMessageA(&message);
        }
    }
    return false;
}

std::vector<UINT> WindowFixture::Messages()
{
    std::vector<UINT> messages;
    for (const Received& one : received)
        messages.push_back(one.message);
    return messages;
}

void WindowFixture::PushKey(bool down, SDL_Scancode position, int modifiers)
{
    SDL_Event event = {};
    event.key.type = down ? SDL_KEYDOWN : SDL_KEYUP;
    event.key.keysym = { position, SDL_GetKeyFromScancode(position), static_cast<Uint16>(modifiers), 0 };
    SDL_PushEvent(&event);
}

void WindowFixture::PushText(const char* text)
{
    SDL_Event event = {};
    event.text.type = SDL_TEXTINPUT;
    SDL_strlcpy(event.text.text, text, sizeof event.text.text);
    SDL_PushEvent(&event);
}

void WindowFixture::PushWindowEvent(SDL_WindowEventID id)
{
    SDL_Event event = {};
    event.window.type = SDL_WINDOWEVENT;
    event.window.event = static_cast<Uint8>(id);
    SDL_PushEvent(&event);
}

void WindowFixture::PushMouse(SDL_EventType type, int x, int y)
{
    SDL_Event event = {};
    if (type == SDL_MOUSEMOTION)
        event.motion = { type, 0, 0, 0, 0, x, y, 0, 0 };
    else
        event.button = { type, 0, 0, 0, SDL_BUTTON_LEFT, type == SDL_MOUSEBUTTONDOWN, 1, 0, x, y };
    SDL_PushEvent(&event);
}
