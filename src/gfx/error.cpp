#include "gfx/error.h"

#include "platform/window.h"

int lastError = ENGINE_NO_ERROR;

namespace
{
struct ErrorRow {
    int code;
    const char* text;
};

constexpr ErrorRow errorTexts[] = {
    { ENGINE_NO_ERROR, "No error" },
    { ENGINE_ALLOCATE_MEMORY, "Can not allocate memory" },
    { ENGINE_OPEN_FILE, "Can not open file" },
    { ENGINE_OPEN_PACK, "Can not open pack" },
    { ENGINE_LOAD_FILE, "Can not load file" },
    { ENGINE_READ_FILE, "Can not read file" },
    { ENGINE_OPEN_PACK_FILE, "Can not open pack file" },
    { ENGINE_READ_PACK_FILE, "Can not read pack file" },
    { ENGINE_CREATE_DIRECTDRAW, "Can not create DirectDraw" },
    { ENGINE_SET_DISPLAY_MODE, "Can not set display mode with DirectDraw" },
    { ENGINE_CREATE_SURFACE, "Can not create DirectDrawSurface" },
    { ENGINE_ATTACH_SURFACE, "Can not attach DirectDrawSurface" },
    { ENGINE_SET_CLIPPER, "Can not set DirectDrawClipper to DirectDrawSurface" },
    { ENGINE_CREATE_CLIPPER, "Can not create DirectDrawClipper" },
    { ENGINE_CLIPPER_WINDOW, "Can not set window handle to DirectDrawClipper" },
    { ENGINE_CREATE_IMAGE, "Can not create image" },
    { ENGINE_LOAD_IMAGE, "Can not load image" },
    { ENGINE_CREATE_CHAR, "Can not create char" },
    { ENGINE_CREATE_FONT, "Can not create font" },
    { ENGINE_BLIT_GDI, "Can not blit to GDI" },
};
}

bool FailWith(EngineError code)
{
    lastError = code;
    return false;
}

const char* ErrorText(int code)
{
    for (const ErrorRow& row : errorTexts)
        if (row.code == code)
            return row.text;
    return "Unknown error";
}

void ShowLastError()
{
    if (lastError != ENGINE_NO_ERROR)
        MessageBoxA(nullptr, ErrorText(lastError), "Error", MB_ICONERROR);
}
