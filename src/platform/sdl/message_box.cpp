#include "platform/sdl/screen.h"
#include "platform/window.h"

#include <SDL.h>
#include <csignal>
#include <cstdio>
#include <iterator>

namespace
{
constexpr int IDOK = 1;

/// While it lives the signals that ask a program to end do so at once: nobody handles the events that SDL makes of
/// them while a box is open.
class DefaultSignals
{
public:
    DefaultSignals()
    {
        struct sigaction byDefault = {};
        byDefault.sa_handler = SIG_DFL;
        for (size_t i = 0; i < std::size(SIGNALS); ++i)
            sigaction(SIGNALS[i], &byDefault, &before[i]);
    }
    ~DefaultSignals()
    {
        for (size_t i = 0; i < std::size(SIGNALS); ++i)
            sigaction(SIGNALS[i], &before[i], nullptr);
    }
    DefaultSignals(const DefaultSignals&) = delete;
    DefaultSignals& operator=(const DefaultSignals&) = delete;

private:
    static constexpr int SIGNALS[] = { SIGTERM, SIGINT };
    struct sigaction before[std::size(SIGNALS)] = {};
};
}

int MessageBoxA(HWND, LPCSTR text, LPCSTR title, UINT type)
{
    const Uint32 flags = type & MB_ICONERROR ? SDL_MESSAGEBOX_ERROR : SDL_MESSAGEBOX_INFORMATION;
    const DefaultSignals signals;
    if (!HasScreen() || SDL_ShowSimpleMessageBox(flags, title, text, nullptr) != 0)
        std::fprintf(stderr, "%s: %s\n", title, text);
    return IDOK;
}
