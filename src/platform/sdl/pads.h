#pragma once

#include <SDL.h>

/// Game controllers as one more source of the messages that keyboard and mouse make. The first that is plugged in
/// steers the first player and the second the second, with their keys; while no game runs they move the pointer from
/// one thing to click on to the next. Start is Space, Back is Esc; A is a click, or Enter where there is nothing to
/// click on.

/// Without SDL's part for controllers there are none.
void StartPads();
void StopPads();

/// Asks the pads for their events now and then, for SDL does it too often when left to itself. To be called all the
/// time; without the focus it does nothing.
void PollPads();

/// Posts what the event means. Each push is a key pressed and released at once: nothing is ever held.
void HandlePad(const SDL_Event& event);

/// To be called when a frame has been shown: pauses the game of a player who moved on and whose pad has gone.
void EndFrameOfPads();
