#pragma once

/// The four ways that a stick or a cross of buttons can be pushed.
enum class Way : int { NONE = -1, UP, DOWN, LEFT, RIGHT };

/// The way that a stick at this place is pushed: x to the right, y down, -32768 to 32767. `held` is the answer for the
/// place before; near a boundary it stays, so that a trembling thumb does not steer.
Way StickWay(int x, int y, Way held);
