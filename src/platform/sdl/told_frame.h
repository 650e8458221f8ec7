#pragma once

#include "platform/frame_hints.h"
#include "platform/sdl/stick.h"
#include "platform/types.h"

#include <span>

/// A player of the running game.
struct Steering {
    SteeringKeys keys;
    bool isMoving;
};

/// What the game has told of its last frame. A frame that told nothing, as all do without the focus, leaves it alone.
std::span<const RECT> Clickables();
/// Empty where no game runs, or while it is paused.
std::span<const Steering> Players();

/// The key that steers that way, which must not be NONE.
int KeyOf(const SteeringKeys& keys, Way way);

/// Takes over what was told of the frame in the making. False when it told nothing.
bool EndToldFrame();
