#pragma once

/// What graphics and file operations that fail store in `lastError`.
enum EngineError : int {
    ENGINE_NO_ERROR = 0,
    ENGINE_ALLOCATE_MEMORY = 1,
    ENGINE_OPEN_FILE = 2,
    ENGINE_OPEN_PACK = 3,
    ENGINE_LOAD_FILE = 4,
    ENGINE_READ_FILE = 5,
    ENGINE_OPEN_PACK_FILE = 6,
    ENGINE_READ_PACK_FILE = 7,
    ENGINE_CREATE_DIRECTDRAW = 8,
    ENGINE_SET_DISPLAY_MODE = 9,
    ENGINE_CREATE_SURFACE = 10,
    ENGINE_ATTACH_SURFACE = 11,
    ENGINE_SET_CLIPPER = 12,
    ENGINE_CREATE_CLIPPER = 13,
    ENGINE_CLIPPER_WINDOW = 14,
    ENGINE_CREATE_IMAGE = 15,
    ENGINE_LOAD_IMAGE = 16,
    ENGINE_CREATE_CHAR = 17,
    ENGINE_CREATE_FONT = 18,
    ENGINE_BLIT_GDI = 19,
    ENGINE_UNKNOWN = 20,
};

/// The latest failure; never cleared, shown when the program ends.
extern int lastError;

/// Stores the code; always false, for the failed operation to return.
bool FailWith(EngineError code);

/// The text of an error code; that of ENGINE_UNKNOWN for a code out of range.
const char* ErrorText(int code);

/// Shows the text of `lastError` in a message box; nothing when there was no error.
void ShowLastError();
