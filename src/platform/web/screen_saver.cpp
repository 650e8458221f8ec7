#include "platform/sdl/screen_saver.h"

/// A page may keep the screen on only for as long as the browser likes; keys do so anyway.
void NoteFrame(bool) {}
