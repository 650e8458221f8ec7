#include "platform/sdl/mouse.h"

#include "platform/sdl/messages.h"
#include "platform/sdl/native_window.h"

#include <algorithm>
#include <iterator>

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

/// Both in SDL's mask of buttons. SDL takes a button whose release it missed as held still and swallows its next
/// press; there is no way to tell it better.
Uint32 heldButtons = 0;
Uint32 missedReleases = 0;

LPARAM lastPosition = 0;

LPARAM PositionWord(int x, int y)
{
    const POINT position = nativeWindow.view.FramePosition(x, y);
    return MAKELPARAM(position.x, position.y);
}
}

void HandleMotion(const SDL_MouseMotionEvent& event)
{
    lastPosition = PositionWord(event.x, event.y);
    PostToWindow(WM_MOUSEMOVE, 0, lastPosition);
}

void HandleButton(const SDL_MouseButtonEvent& event)
{
    const auto* row = std::ranges::find(buttonMessages, event.button, &ButtonMessages::button);
    if (row == std::end(buttonMessages))
        return;
    const Uint32 mask = SDL_BUTTON(event.button);
    const bool isPressed = event.state == SDL_PRESSED;
    const bool wasSwallowed = !isPressed && (missedReleases & mask);
    lastPosition = PositionWord(event.x, event.y);
    if (isPressed || wasSwallowed)
        PostToWindow(row->down, 0, lastPosition);
    if (!isPressed)
        PostToWindow(row->up, 0, lastPosition);
    heldButtons = isPressed ? heldButtons | mask : heldButtons & ~mask;
    missedReleases &= ~mask;
}

void ReleaseHeldButtons()
{
    for (const ButtonMessages& row : buttonMessages)
        if (heldButtons & SDL_BUTTON(row.button))
            PostToWindow(row.up, 0, lastPosition);
    heldButtons = 0;
}

void FindMissedReleases()
{
    const Uint32 suspects = SDL_GetMouseState(nullptr, nullptr) & ~heldButtons & ~missedReleases;
    if (suspects == 0 || (suspects & SDL_GetGlobalMouseState(nullptr, nullptr)))
        return;
    SDL_PumpEvents(); // the release may just be on its way
    missedReleases |= suspects & SDL_GetMouseState(nullptr, nullptr);
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
