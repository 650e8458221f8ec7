#include "platform/sdl/screen_saver.h"

#include "platform/sdl/native_window.h"
#include "platform/sdl/x11_screen.h"

#include <SDL.h>
#include <algorithm>

namespace
{
/// What a mouse stirs up in a menu is no play, nor is a short stillness a pause. Each change asks the desktop.
constexpr int LONGEST = 100; // frames

int stir = 0; ///< frames that moved less those that did not, within bounds

void FreeScreenSaver()
{
    SDL_EnableScreenSaver();
    FreeX11ScreenSaver(nativeWindow.handle);
}
}

void NoteFrame(bool moves)
{
    stir = std::clamp(stir + (moves ? 1 : -1), 0, LONGEST);
    if (stir == LONGEST)
        SDL_DisableScreenSaver();
    else if (stir == 0 && !SDL_IsScreenSaverEnabled())
        FreeScreenSaver();
}
