#include "platform/sdl/present.h"

#include "platform/sdl/messages.h"
#include "platform/sdl/native_window.h"
#include "platform/sdl/pads.h"
#include "platform/sdl/screen_saver.h"
#include "platform/sdl/window_state.h"

namespace
{
/// Scenes stand still without the focus, and what uncovers the window shows its last frame again (events.cpp).
bool IsWatched()
{
    constexpr Uint32 OUT_OF_SIGHT = SDL_WINDOW_MINIMIZED | SDL_WINDOW_HIDDEN;
    return WindowHasFocus() && !(SDL_GetWindowFlags(nativeWindow.handle) & OUT_OF_SIGHT);
}
}

void PresentFrame()
{
    const bool isWatched = IsWatched();
    NoteFrame(isWatched && nativeWindow.view.HasChanges());
    if (isWatched)
        nativeWindow.view.ShowChanges();
    EndFrameOfMessages();
    EndFrameOfPads();
}
