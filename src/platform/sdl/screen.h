#pragma once

#include <SDL.h>

/// Gets ready to make windows. Fails without a screen, unless a driver without one was asked for by name.
/// The reason is then in SDL_GetError. Ends with SDL_QuitSubSystem.
bool StartVideo();

/// Whether somebody can see what is shown.
bool HasScreen();

/// The main screen's area among all screens; empty when there is none.
SDL_Rect MainScreen();
