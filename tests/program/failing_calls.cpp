// What the program calls of the system and of SDL, each failing where it is told to. The linker leads the program's own
// calls here (--wrap in CMakeLists.txt).

#include "support/faults.h"

#include <SDL.h>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <sys/stat.h>
#include <type_traits>
#include <unistd.h>

namespace
{
template <class Result, class... Arguments>
Result Call(Calls kind, std::type_identity_t<Result> failure, Result (*real)(Arguments...), Arguments... arguments)
{
    if (!IsToFail(kind))
        return real(arguments...);
    errno = ENOSPC;
    SDL_SetError("made to fail");
    return failure;
}
}

// A call's kind, what it returns when it fails, name, parameters and arguments.
#define FAILING_CALL(KIND, FAILURE, RESULT, NAME, PARAMETERS, ...)                                                     \
    extern "C" RESULT __real_##NAME PARAMETERS;                                                                        \
    extern "C" RESULT __wrap_##NAME PARAMETERS                                                                         \
    {                                                                                                                  \
        return Call<RESULT>(Calls::KIND, FAILURE, __real_##NAME, __VA_ARGS__);                                         \
    }

FAILING_CALL(FILES, -1, int, open64, (const char* path, int flags, mode_t mode), path, flags, mode)
FAILING_CALL(FILES, -1, ssize_t, read, (int file, void* bytes, size_t count), file, bytes, count)
FAILING_CALL(FILES, -1, ssize_t, pread64, (int file, void* bytes, size_t count, off64_t offset), file, bytes, count,
             offset)
FAILING_CALL(FILES, -1, ssize_t, write, (int file, const void* bytes, size_t count), file, bytes, count)
FAILING_CALL(FILES, -1, int, rename, (const char* from, const char* to), from, to)
FAILING_CALL(FILES, -1, int, fsync, (int file), file)
FAILING_CALL(FILES, -1, int, flock, (int file, int operation), file, operation)
FAILING_CALL(FILES, -1, int, mkdir, (const char* path, mode_t mode), path, mode)
FAILING_CALL(FILES, -1, int, fstat64, (int file, struct stat64* status), file, status)
FAILING_CALL(FILES, nullptr, FILE*, fopen, (const char* path, const char* mode), path, mode)

FAILING_CALL(SDL, -1, int, SDL_InitSubSystem, (Uint32 flags), flags)
FAILING_CALL(SDL, nullptr, SDL_Window*, SDL_CreateWindow,
             (const char* title, int x, int y, int width, int height, Uint32 flags), title, x, y, width, height, flags)
FAILING_CALL(SDL, nullptr, SDL_Renderer*, SDL_CreateRenderer, (SDL_Window * window, int index, Uint32 flags), window,
             index, flags)
FAILING_CALL(SDL, nullptr, SDL_Texture*, SDL_CreateTexture,
             (SDL_Renderer * renderer, Uint32 format, int access, int width, int height), renderer, format, access,
             width, height)
FAILING_CALL(SDL, -1, int, SDL_UpdateTexture,
             (SDL_Texture * texture, const SDL_Rect* area, const void* pixels, int pitch), texture, area, pixels, pitch)
FAILING_CALL(SDL, -1, int, SDL_SetRenderTarget, (SDL_Renderer * renderer, SDL_Texture* texture), renderer, texture)
FAILING_CALL(SDL, -1, int, SDL_RenderCopy,
             (SDL_Renderer * renderer, SDL_Texture* texture, const SDL_Rect* source, const SDL_Rect* target), renderer,
             texture, source, target)
FAILING_CALL(SDL, -1, int, SDL_RenderClear, (SDL_Renderer * renderer), renderer)
FAILING_CALL(SDL, -1, int, SDL_GetRendererInfo, (SDL_Renderer * renderer, SDL_RendererInfo* info), renderer, info)
FAILING_CALL(SDL, -1, int, SDL_GetRendererOutputSize, (SDL_Renderer * renderer, int* width, int* height), renderer,
             width, height)
FAILING_CALL(SDL, nullptr, SDL_Surface*, SDL_GetWindowSurface, (SDL_Window * window), window)
FAILING_CALL(SDL, -1, int, SDL_UpdateWindowSurfaceRects, (SDL_Window * window, const SDL_Rect* areas, int count),
             window, areas, count)
FAILING_CALL(SDL, -1, int, SDL_SetWindowFullscreen, (SDL_Window * window, Uint32 flags), window, flags)
FAILING_CALL(SDL, -1, int, SDL_GetDisplayBounds, (int display, SDL_Rect* bounds), display, bounds)
FAILING_CALL(SDL, nullptr, SDL_Surface*, SDL_CreateRGBSurfaceWithFormat,
             (Uint32 flags, int width, int height, int depth, Uint32 format), flags, width, height, depth, format)
FAILING_CALL(SDL, 0, SDL_AudioDeviceID, SDL_OpenAudioDevice,
             (const char* name, int capture, const SDL_AudioSpec* wanted, SDL_AudioSpec* got, int changes), name,
             capture, wanted, got, changes)
