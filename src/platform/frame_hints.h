#pragma once

/// What the game tells of the frame in the making for the sake of devices that know neither its keys nor its buttons.
/// The layer makes keys and clicks of what such a device does; Windows has no such layer.

#ifdef _WIN32
#include <windows.h>
#else
#include "platform/types.h"
#endif

/// Virtual-key codes.
struct SteeringKeys {
    int up;
    int down;
    int left;
    int right;
};

#ifdef _WIN32
inline void TellClickable(const RECT&) {}
inline void TellSteering(const SteeringKeys&, bool) {}
#else
/// There is something to click on: client pixels, edges included.
void TellClickable(const RECT& area);
/// The next player of the running game, the first one first. `isMoving`: who lets go now comes to harm.
void TellSteering(const SteeringKeys& keys, bool isMoving);
#endif
