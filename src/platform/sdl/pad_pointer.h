#pragma once

#include "platform/sdl/stick.h"
#include "platform/types.h"

#include <span>

/// The box that a pointer is on, edges included; null for none.
const RECT* BoxAt(std::span<const RECT> boxes, POINT pointer);

/// The box to which a pointer goes that is pushed that way: from a box to the next beyond its edge, from elsewhere to
/// the nearest wherever it lies. Null when there is none.
const RECT* NextBox(std::span<const RECT> boxes, POINT pointer, Way way);
