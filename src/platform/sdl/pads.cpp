#include "platform/sdl/pads.h"

#include "platform/sdl/keyboard.h"
#include "platform/sdl/mouse.h"
#include "platform/sdl/pad_pointer.h"
#include "platform/sdl/told_frame.h"
#include "platform/sdl/window_state.h"
#include "platform/window.h"

#include <algorithm>
#include <iterator>

namespace
{
struct Pad {
    SDL_GameController* controller = nullptr; ///< null while the place is free
    SDL_JoystickID id = -1;
    SDL_Point stick = {};
    Way way = Way::NONE; ///< that the stick is pushed
    bool isLost = false; ///< it has gone since the last frame that tells whether its player moves
};

/// One for each player. What is plugged in beyond that waits for a free place.
Pad pads[2];

/// A tenth of a frame.
constexpr Uint32 POLL_MS = 4;

bool isStarted = false;
Uint32 lastPoll = 0; ///< ms

constexpr Way WayOf(int button)
{
    switch (button) {
    case SDL_CONTROLLER_BUTTON_DPAD_UP:
        return Way::UP;
    case SDL_CONTROLLER_BUTTON_DPAD_DOWN:
        return Way::DOWN;
    case SDL_CONTROLLER_BUTTON_DPAD_LEFT:
        return Way::LEFT;
    case SDL_CONTROLLER_BUTTON_DPAD_RIGHT:
        return Way::RIGHT;
    default:
        return Way::NONE;
    }
}

Pad* PadOf(SDL_JoystickID id)
{
    auto* const pad = std::find_if(std::begin(pads), std::end(pads), [id](const Pad& each) { return each.id == id; });
    return pad == std::end(pads) ? nullptr : pad;
}

/// The player whom the pad steers, null for none. A player alone may take either pad.
const Steering* PlayerOf(const Pad& pad)
{
    const std::span<const Steering> players = Players();
    const auto place = static_cast<size_t>(&pad - pads);
    return players.empty() ? nullptr : &players[std::min(place, players.size() - 1)];
}

void Push(const Pad& pad, Way way)
{
    if (way == Way::NONE)
        return;
    if (const Steering* player = PlayerOf(pad))
        return TapKey(KeyOf(player->keys, way), 0);
    if (const RECT* box = NextBox(Clickables(), PointerPosition(), way))
        MovePointer({ (box->left + box->right) / 2, (box->top + box->bottom) / 2 });
}

void PressA()
{
    if (Players().empty() && BoxAt(Clickables(), PointerPosition()))
        ClickPointer();
    else
        TapKey(VK_RETURN, '\r');
}

void PressButton(const Pad& pad, int button)
{
    switch (button) {
    case SDL_CONTROLLER_BUTTON_A:
        return PressA();
    case SDL_CONTROLLER_BUTTON_START:
        return TapKey(VK_SPACE, ' ');
    case SDL_CONTROLLER_BUTTON_BACK:
        return TapKey(VK_ESCAPE, '\x1B');
    default:
        return Push(pad, WayOf(button));
    }
}

void MoveStick(Pad& pad, const SDL_ControllerAxisEvent& event)
{
    if (event.axis == SDL_CONTROLLER_AXIS_LEFTX)
        pad.stick.x = event.value;
    else if (event.axis == SDL_CONTROLLER_AXIS_LEFTY)
        pad.stick.y = event.value;
    const Way way = StickWay(pad.stick.x, pad.stick.y, pad.way);
    if (way == pad.way)
        return;
    pad.way = way;
    Push(pad, way);
}

void Open(Pad& place, int device)
{
    place.controller = SDL_GameControllerOpen(device);
    place.id = place.controller ? SDL_JoystickGetDeviceInstanceID(device) : -1;
    place.stick = {};
    place.way = Way::NONE;
}

/// Gives the places that are free to pads that have none.
void FillPlaces()
{
    for (int device = 0; device < SDL_NumJoysticks(); ++device) {
        Pad* const place = PadOf(-1);
        if (place && SDL_IsGameController(device) && !PadOf(SDL_JoystickGetDeviceInstanceID(device)))
            Open(*place, device);
    }
}

void Close(Pad& pad)
{
    if (pad.controller)
        SDL_GameControllerClose(pad.controller);
    pad.controller = nullptr;
    pad.id = -1;
}

void Remove(SDL_JoystickID id)
{
    if (Pad* pad = PadOf(id)) {
        Close(*pad);
        pad->isLost = true;
    }
    FillPlaces();
}
}

void StartPads()
{
    SDL_SetHint(SDL_HINT_AUTO_UPDATE_JOYSTICKS, "0"); // PollPads does it
    isStarted = SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) == 0;
}

void StopPads()
{
    for (Pad& pad : pads) {
        Close(pad);
        pad = {};
    }
    if (isStarted)
        SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
    isStarted = false;
}

void PollPads()
{
    const Uint32 now = SDL_GetTicks();
    if (!isStarted || !WindowHasFocus() || now - lastPoll < POLL_MS)
        return;
    lastPoll = now;
    SDL_JoystickUpdate();
}

void HandlePad(const SDL_Event& event)
{
    switch (event.type) {
    case SDL_CONTROLLERDEVICEADDED:
        return FillPlaces();
    case SDL_CONTROLLERDEVICEREMOVED:
        return Remove(event.cdevice.which);
    case SDL_CONTROLLERBUTTONDOWN:
        if (const Pad* pad = PadOf(event.cbutton.which))
            PressButton(*pad, event.cbutton.button);
        break;
    case SDL_CONTROLLERAXISMOTION:
        if (Pad* pad = PadOf(event.caxis.which))
            MoveStick(*pad, event.caxis);
        break;
    default:
        break;
    }
}

void EndFrameOfPads()
{
    if (!EndToldFrame())
        return;
    // Asked for before all that waits, and again until the game stands: pressed later the key could end a pause, or
    // answer a question.
    const auto isMissed = [](const Pad& pad) {
        const Steering* player = PlayerOf(pad);
        return pad.isLost && player && player->isMoving;
    };
    if (std::any_of(std::begin(pads), std::end(pads), isMissed))
        return TapKeyFirst(VK_SPACE);
    for (Pad& pad : pads)
        pad.isLost = false;
}
