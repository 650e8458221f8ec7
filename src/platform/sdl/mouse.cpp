#include "platform/sdl/mouse.h"

#include "platform/sdl/messages.h"
#include "platform/sdl/native_window.h"

namespace
{
struct ButtonMessages {
    Uint8 button;
    UINT down;
    UINT up;
};

constexpr ButtonMessages buttonMessages[] = {
    { SDL_BUTTON_LEFT, WM_LBUTTONDOWN, WM_LBUTTONUP },
    { SDL_BUTTON_RIGHT, WM_RBUTTONDOWN, WM_RBUTTONUP },
};

LPARAM PositionWord(int x, int y)
{
    const POINT position = nativeWindow.view.FramePosition(x, y);
    return MAKELPARAM(position.x, position.y);
}
}

void HandleMotion(const SDL_MouseMotionEvent& event)
{
    PostToWindow(WM_MOUSEMOVE, 0, PositionWord(event.x, event.y));
}

void HandleButton(const SDL_MouseButtonEvent& event)
{
    for (const ButtonMessages& row : buttonMessages)
        if (row.button == event.button)
            PostToWindow(event.state == SDL_PRESSED ? row.down : row.up, 0, PositionWord(event.x, event.y));
}

HCURSOR LoadCursorA(HINSTANCE, LPCSTR name)
{
    return reinterpret_cast<HCURSOR>(const_cast<char*>(name));
}

HCURSOR SetCursor(HCURSOR cursor)
{
    const bool shown = SDL_ShowCursor(SDL_QUERY) == SDL_ENABLE;
    // Asked every frame, so only a change goes to the display.
    if (shown != (cursor != nullptr))
        SDL_ShowCursor(cursor ? SDL_ENABLE : SDL_DISABLE);
    return shown ? LoadCursorA(nullptr, IDC_ARROW) : nullptr;
}
