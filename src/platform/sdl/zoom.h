#pragma once

#include "platform/sdl/native_window.h"

/// Gives a window that does not show yet the factor that the player chose last or, without one, what its desktop has
/// room for. Another one keeps its own as far as there is room. Its size stays as it is until it is next set.
void ChooseFactor(NativeWindow& window);

/// Does what a key means for the window's factor: Ctrl with plus, minus and nought. False when the key is not such a
/// one; else the game must not hear of it.
bool HandleZoomKey(const SDL_Keysym& key);
