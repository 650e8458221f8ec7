#pragma once

#include <SDL.h>

/// The virtual-key code of a key, 0 for keys without one. A letter goes by the layout if that has Latin letters, else
/// by its place.
int VirtualKey(const SDL_Keysym& key, bool hasLatinLetters);

/// Posts the key's message and, for keys that are control characters, the character's.
void HandleKey(const SDL_KeyboardEvent& event);

/// Posts the characters of a UTF-8 text in Windows-1252; those that it lacks are left out.
void HandleText(const char* text);

/// Posts a key's press and its release, with a character between unless that is 0.
void TapKey(int code, char character);

/// The same without a character, before all that waits: the frame in the making sees it.
void TapKeyFirst(int code);

/// Posts the release of every key that is down, so that none stays held when the keyboard goes elsewhere.
void ReleaseHeldKeys();
