#include "platform/sdl/x11_screen.h"

#include <SDL_syswm.h>
#include <X11/extensions/Xrandr.h>
#include <X11/extensions/scrnsaver.h>
#include <span>

namespace
{
/// A function of a library that SDL itself loads when there is an X server. It stays loaded: Xrandr leaves hooks on
/// the connection.
template <class Function>
Function* Load(const char* library, const char* name)
{
    void* const loaded = SDL_LoadObject(library);
    return loaded ? reinterpret_cast<Function*>(SDL_LoadFunction(loaded, name)) : nullptr;
}

template <class Function>
Function* LoadXrandr(const char* name)
{
    return Load<Function>("libXrandr.so.2", name);
}

template <class Function>
Function* LoadX11(const char* name)
{
    return Load<Function>("libX11.so.6", name);
}

/// The connection and the window on it; none on other systems.
std::optional<SDL_SysWMinfo> X11Window(SDL_Window* window)
{
    SDL_SysWMinfo info = {};
    SDL_VERSION(&info.version);
    const bool isX11 = window && SDL_GetWindowWMInfo(window, &info) && info.subsystem == SDL_SYSWM_X11;
    return isX11 ? std::optional(info) : std::nullopt;
}

bool HasSize(Display* display, Window window, const SDL_Rect& area)
{
    const auto getGeometry = LoadX11<decltype(XGetGeometry)>("XGetGeometry");
    Window root = 0;
    int x = 0;
    int y = 0;
    unsigned width = 0;
    unsigned height = 0;
    unsigned border = 0;
    unsigned depth = 0;
    return getGeometry && getGeometry(display, window, &root, &x, &y, &width, &height, &border, &depth) &&
           static_cast<int>(width) == area.w && static_cast<int>(height) == area.h;
}

/// The screen with the middle of the window or, if that is on none, the main one.
SDL_Rect ScreenOf(SDL_Window* window, std::span<const XRRMonitorInfo> monitors)
{
    SDL_Point middle = {};
    SDL_Point size = {};
    SDL_GetWindowPosition(window, &middle.x, &middle.y);
    SDL_GetWindowSize(window, &size.x, &size.y);
    middle = { middle.x + size.x / 2, middle.y + size.y / 2 };
    const bool isShown = SDL_GetWindowFlags(window) & SDL_WINDOW_SHOWN;
    std::optional<SDL_Rect> main;
    for (const XRRMonitorInfo& one : monitors) {
        const SDL_Rect area = { one.x, one.y, one.width, one.height };
        if (isShown && SDL_PointInRect(&middle, &area))
            return area;
        if (!main || one.primary)
            main = area;
    }
    return *main;
}
}

std::optional<SDL_Rect> X11Screen(SDL_Window* window)
{
    const std::optional<SDL_SysWMinfo> info = X11Window(window);
    const auto getMonitors = LoadXrandr<decltype(XRRGetMonitors)>("XRRGetMonitors");
    const auto freeMonitors = LoadXrandr<decltype(XRRFreeMonitors)>("XRRFreeMonitors");
    if (!info || !getMonitors || !freeMonitors)
        return std::nullopt;
    Display* const display = info->info.x11.display;
    int count = 0;
    XRRMonitorInfo* const monitors = getMonitors(display, DefaultRootWindow(display), True, &count);
    if (!monitors)
        return std::nullopt;
    std::optional<SDL_Rect> area;
    if (count > 0)
        area = ScreenOf(window, std::span(monitors, static_cast<size_t>(count)));
    freeMonitors(monitors);
    return area;
}

void CoverX11Screen(SDL_Window* window, const SDL_Rect& area)
{
    const std::optional<SDL_SysWMinfo> info = X11Window(window);
    const auto moveResize = LoadX11<decltype(XMoveResizeWindow)>("XMoveResizeWindow");
    if (!info || !moveResize || HasSize(info->info.x11.display, info->info.x11.window, area))
        return;
    moveResize(info->info.x11.display, info->info.x11.window, area.x, area.y, static_cast<unsigned>(area.w),
               static_cast<unsigned>(area.h));
}

void FreeX11ScreenSaver(SDL_Window* window)
{
    const std::optional<SDL_SysWMinfo> info = X11Window(window);
    const auto suspend = info ? Load<decltype(XScreenSaverSuspend)>("libXss.so.1", "XScreenSaverSuspend") : nullptr;
    if (suspend)
        suspend(info->info.x11.display, False);
}
