#pragma once

#include "gfx/image.h"
#include "platform/directdraw.h"
#include "platform/window.h"

/// Copies an image's rows into a 16-bit surface; `rowSkip` is the bytes from a written row's end to the next row.
using RowConverter = void (*)(const CImage& image, void* surface, int rowSkip);

extern HWND displayWindow; ///< window of the last DisplaySetMode
extern bool isWindowed;    ///< the mode that was set last
extern int displayWidth;   ///< size of the last DisplaySetMode, pixels
extern int displayHeight;

/// Releases what the display holds and sets up a window with that client size, or full screen at that size.
/// False: an ENGINE_ code says which step failed, and nothing is presented until a mode is set again.
bool DisplaySetMode(HWND window, int width, int height, bool windowed);

/// Releases the full-screen objects and gives the desktop its mode back.
void DisplayRelease();

/// Shows a finished frame; its width must be a multiple of 4. A failed step only means that it is not shown.
void DisplayPresent(const CImage& image);

/// Row converters for the two 16-bit layouts of a screen.
void ConvertRowsCopy(const CImage& image, void* surface, int rowSkip);
void ConvertRows555(const CImage& image, void* surface, int rowSkip);
