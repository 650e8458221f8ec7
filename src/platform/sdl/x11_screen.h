#pragma once

#include <SDL.h>
#include <optional>

/// The area of the screen that the window shows on, of the main one before it shows, as it is now, if that is on an X
/// server: SDL keeps the sizes that it found at first.
std::optional<SDL_Rect> X11Screen(SDL_Window* window);

/// Makes a full-screen window cover that area where no window manager has done so.
void CoverX11Screen(SDL_Window* window, const SDL_Rect& area);

/// Lets an X server's screen saver run again after SDL_EnableScreenSaver, which forgets to where it has made that
/// server wait, there being no desktop to ask.
void FreeX11ScreenSaver(SDL_Window* window);
