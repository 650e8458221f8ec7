#include "platform/sdl/zoom.h"

#include "platform/posix/remembered_factor.h"
#include "platform/sdl/screen.h"
#include "platform/sdl/window_factor.h"

#include <algorithm>
#include <iterator>

namespace
{
/// A key goes by what the layout has on it or, where the layout has that on no key without Shift, by its place.
struct ZoomKey {
    SDL_Keycode symbol;
    SDL_Keycode otherSymbol;
    SDL_Scancode place;
    SDL_Scancode keypadPlace;
    int step; ///< 0: back to the automatic factor
};

constexpr ZoomKey zoomKeys[] = {
    { SDLK_PLUS, SDLK_EQUALS, SDL_SCANCODE_EQUALS, SDL_SCANCODE_KP_PLUS, 1 },
    { SDLK_MINUS, SDLK_MINUS, SDL_SCANCODE_MINUS, SDL_SCANCODE_KP_MINUS, -1 },
    { SDLK_0, SDLK_0, SDL_SCANCODE_0, SDL_SCANCODE_KP_0, 0 },
};

bool IsOnLayout(SDL_Keycode symbol)
{
    return SDL_GetScancodeFromKey(symbol) != SDL_SCANCODE_UNKNOWN;
}

bool IsKey(const ZoomKey& row, const SDL_Keysym& key)
{
    if (key.scancode == row.keypadPlace || key.sym == row.symbol || key.sym == row.otherSymbol)
        return true;
    return key.scancode == row.place && !IsOnLayout(row.symbol) && !IsOnLayout(row.otherSymbol);
}

SDL_Point MiddleOf(const NativeWindow& window)
{
    SDL_Rect area = {};
    SDL_GetWindowPosition(window.handle, &area.x, &area.y);
    SDL_GetWindowSize(window.handle, &area.w, &area.h);
    return { area.x + area.w / 2, area.y + area.h / 2 };
}

void SetFactor(NativeWindow& window, int factor, const SDL_Rect& usable)
{
    const SDL_Point middle = MiddleOf(window);
    window.factor = factor;
    SetClientSize(window, window.clientSize);
    PlaceClientArea(window, middle, usable);
}

/// Full screen shows no factor; the window has its own again afterwards.
void Zoom(NativeWindow& window, int step)
{
    if (SDL_GetWindowFlags(window.handle) & SDL_WINDOW_FULLSCREEN)
        return;
    const Desktop desktop = WindowDesktop(window.handle);
    const int factor = step == 0 ? AutomaticFactor(window.clientSize, desktop)
                                 : std::clamp(window.factor + step, 1, LargestFactor(window.clientSize, desktop));
    if (step == 0 || factor != window.factor) // one that a smaller screen has cut is not forgotten at its limit
        RememberFactor(SDL_GetWindowTitle(window.handle), step == 0 ? 0 : factor);
    if (factor != window.factor)
        SetFactor(window, factor, desktop.usable);
}
}

void ChooseFactor(NativeWindow& window)
{
    const Desktop desktop = WindowDesktop(window.handle);
    const bool isShown = window.style & WS_VISIBLE;
    const int chosen = isShown ? window.factor : RememberedFactor(SDL_GetWindowTitle(window.handle));
    window.factor = chosen == 0 ? AutomaticFactor(window.clientSize, desktop)
                                : std::min(chosen, LargestFactor(window.clientSize, desktop));
}

bool HandleZoomKey(const SDL_Keysym& key)
{
    const auto isPressed = [&key](const ZoomKey& row) { return IsKey(row, key); };
    const auto* row = std::find_if(std::begin(zoomKeys), std::end(zoomKeys), isPressed);
    if (row == std::end(zoomKeys))
        return false;
    Zoom(nativeWindow, row->step);
    return true;
}
