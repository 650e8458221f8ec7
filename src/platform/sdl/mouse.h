#pragma once

#include <SDL.h>

/// Post the mouse's messages, with positions in pixels of the frame.
void HandleMotion(const SDL_MouseMotionEvent& event);
void HandleButton(const SDL_MouseButtonEvent& event);

/// Posts the release of every button that is down, so that none stays held when the mouse goes elsewhere.
void ReleaseHeldButtons();

/// Releases the buttons that were let go where SDL did not see it; to be called when all events have been handled.
void FindMissedReleases();
