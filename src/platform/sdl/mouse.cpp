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

/// Posts the release of those of the buttons that are down.
void ReleaseButtons(Uint32 mask)
{
    for (const ButtonMessages& row : buttonMessages)
        if (heldButtons & mask & SDL_BUTTON(row.button))
            PostToWindow(row.up, 0, lastPosition);
    heldButtons &= ~mask;
}
}

void HandleMotion(const SDL_MouseMotionEvent& event)
{
    lastPosition = PositionWord(event.x, event.y);
    PostToWindow(WM_MOUSEMOVE, 0, lastPosition);
}

void HandleButton(const SDL_MouseButtonEvent& event)
{
    const auto isThatButton = [&event](const ButtonMessages& each) { return each.button == event.button; };
    const auto* row = std::find_if(std::begin(buttonMessages), std::end(buttonMessages), isThatButton);
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

POINT PointerPosition()
{
    return { static_cast<int16_t>(LOWORD(lastPosition)), static_cast<int16_t>(HIWORD(lastPosition)) };
}

void MovePointer(POINT position)
{
    lastPosition = MAKELPARAM(position.x, position.y);
    PostToWindow(WM_MOUSEMOVE, 0, lastPosition);
    const SDL_Point shown = nativeWindow.view.WindowPosition(position);
    SDL_WarpMouseInWindow(nativeWindow.handle, shown.x, shown.y);
}

void ClickPointer()
{
    PostToWindow(WM_LBUTTONDOWN, 0, lastPosition);
    PostToWindow(WM_LBUTTONUP, 0, lastPosition);
}

void ReleaseHeldButtons()
{
    ReleaseButtons(heldButtons);
}

void FindMissedReleases()
{
    const Uint32 heldForSdl = SDL_GetMouseState(nullptr, nullptr) & ~missedReleases;
    const Uint32 missed = heldForSdl != 0 ? heldForSdl & ~SDL_GetGlobalMouseState(nullptr, nullptr) : 0;
    if (missed == 0)
        return;
    SDL_PumpEvents();
    if (SDL_HasEvents(SDL_MOUSEBUTTONDOWN, SDL_MOUSEBUTTONUP))
        return; // the release was just on its way
    missedReleases |= missed;
    ReleaseButtons(missed);
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
