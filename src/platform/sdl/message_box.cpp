#include "platform/sdl/screen.h"
#include "platform/window.h"

#include <SDL.h>
#include <cstdio>

namespace
{
constexpr int IDOK = 1;
}

int MessageBoxA(HWND, LPCSTR text, LPCSTR title, UINT type)
{
    const Uint32 flags = type & MB_ICONERROR ? SDL_MESSAGEBOX_ERROR : SDL_MESSAGEBOX_INFORMATION;
    if (!HasScreen() || SDL_ShowSimpleMessageBox(flags, title, text, nullptr) != 0)
        std::fprintf(stderr, "%s: %s\n", title, text);
    return IDOK;
}
