#pragma once

#include "platform/sdl/window_factor.h"

#include <SDL.h>
#include <string>

/// Gets ready to make windows. Fails without a screen, unless a driver without one was asked for by name.
/// The reason is then in SDL_GetError. Ends with SDL_QuitSubSystem.
bool StartVideo();

/// The names of the video drivers that StartVideo tries.
std::string ScreenDrivers();

/// Whether somebody can see what is shown.
bool HasScreen();

/// The area, among all screens, of the one that the window shows on, of the main one for null or before it shows; empty
/// when there is none.
SDL_Rect WindowScreen(SDL_Window* window);

/// What that screen has for the window.
Desktop WindowDesktop(SDL_Window* window);
