#pragma once

#include "platform/types.h"

#include <SDL.h>

/// Post the mouse's messages, with positions in pixels of the frame.
void HandleMotion(const SDL_MouseMotionEvent& event);
void HandleButton(const SDL_MouseButtonEvent& event);

/// Where the pointer is, in pixels of the frame.
POINT PointerPosition();

/// Takes the pointer there, and presses and releases its left button where it is, without the mouse.
void MovePointer(POINT position);
void ClickPointer();

/// Posts the release of every button that is down, so that none stays held when the mouse goes elsewhere.
void ReleaseHeldButtons();

/// Releases the buttons that were let go where SDL did not see it; to be called when all events have been handled.
void FindMissedReleases();
