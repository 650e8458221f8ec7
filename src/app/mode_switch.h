#pragma once

#include "platform/window.h"

/// Sets the display to a window or to full screen, if it is not in that mode. A mode that cannot be set leaves the
/// display in the one it had.
void ApplyDisplayMode(bool windowed);

/// Switches the display to a window (true) or to full screen, logging the switch. When it fails, the other mode is
/// set again. `isWindowed` tells which mode is in force afterwards.
void SwitchDisplayMode(HWND window, int width, int height, bool windowed);
