#pragma once

#include "platform/window.h"

/// Switches the display to a window (true) or to full screen, logging the switch. When it fails, the other mode is
/// set again. `isWindowed` tells which mode is in force afterwards.
void SwitchDisplayMode(HWND window, int width, int height, bool windowed);
