#pragma once

#include <SDL.h>

/// Post the mouse's messages, with positions in pixels of the frame.
void HandleMotion(const SDL_MouseMotionEvent& event);
void HandleButton(const SDL_MouseButtonEvent& event);
