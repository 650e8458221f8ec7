#include "platform/window.h"

#include <SDL.h>
#include <cstdio>
#include <string_view>

namespace
{

constexpr int IDOK = 1;

/// Whether somebody could see and answer a box.
bool HasDisplay()
{
    const char* driver = SDL_GetCurrentVideoDriver();
    const std::string_view name = driver ? driver : "";
    return !name.empty() && name != "dummy" && name != "offscreen";
}

} // namespace

int MessageBoxA(HWND, LPCSTR text, LPCSTR title, UINT type)
{
    const Uint32 flags = type & MB_ICONERROR ? SDL_MESSAGEBOX_ERROR : SDL_MESSAGEBOX_INFORMATION;
    if (!HasDisplay() || SDL_ShowSimpleMessageBox(flags, title, text, nullptr) != 0)
        std::fprintf(stderr, "%s: %s\n", title, text);
    return IDOK;
}
