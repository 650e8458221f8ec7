#include "platform/sdl/frame_output.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace
{
/// What OpenGL calls its implementations that draw with the processor.
constexpr std::string_view softwareGl[] = { "llvmpipe", "softpipe", "swrast", "Software Rasterizer", "SwiftShader" };

/// OpenGL's name for what draws. Its context must be current, as that of a renderer just made is.
std::string_view GlRendererName()
{
    constexpr unsigned GL_RENDERER_NAME = 0x1F01;
    using GetString = const char* (*)(unsigned name);
    const auto getString = reinterpret_cast<GetString>(SDL_GL_GetProcAddress("glGetString"));
    const char* const name = getString ? getString(GL_RENDERER_NAME) : nullptr;
    return name ? name : "";
}

bool DrawsWithProcessor(SDL_Renderer* renderer)
{
    SDL_RendererInfo info = {};
    if (SDL_GetRendererInfo(renderer, &info) != 0)
        return false;
    if (info.flags & SDL_RENDERER_SOFTWARE)
        return true;
    if (!std::string_view(info.name).starts_with("opengl"))
        return false;
    const std::string_view name = GlRendererName();
    return std::any_of(std::begin(softwareGl), std::end(softwareGl),
                       [name](std::string_view part) { return name.find(part) != name.npos; });
}

bool WouldDrawWithProcessor(SDL_Window* window)
{
    SDL_Renderer* const renderer = SDL_CreateRenderer(window, -1, 0);
    const bool isSoftware = !renderer || DrawsWithProcessor(renderer);
    if (renderer)
        SDL_DestroyRenderer(renderer); // a window has either a renderer or a surface
    return isSoftware;
}

bool PrefersSurface(SDL_Window* window)
{
    const char* const wanted = std::getenv("TERVALIS_PRESENT");
    const std::string_view way = wanted ? wanted : "";
    return way == "software" || (way != "renderer" && WouldDrawWithProcessor(window));
}
}

std::unique_ptr<CFrameOutput> OpenFrameOutput(SDL_Window* window)
{
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0"); // a surface is not to be shown by a renderer
    std::unique_ptr<CFrameOutput> output = PrefersSurface(window) ? OpenSurfaceOutput(window) : nullptr;
    return output ? std::move(output) : OpenRendererOutput(window);
}
