#pragma once

#include "platform/window.h"

/// Puts a message for the window at the end of its queue.
void PostToWindow(UINT message, WPARAM wParam, LPARAM lParam);

/// Forgets all messages but a quit message: their window is gone.
void DropMessages();
