#pragma once

/// Opening documents with their default program (shell32).
#ifdef _WIN32
#include <windows.h>

#include <shellapi.h>
#else
#include "platform/types.h"

/// Opens `file` (a path or an address) in the program that the desktop has for it, without waiting for it.
/// A value above 32 means success.
HINSTANCE ShellExecuteA(HWND window, LPCSTR verb, LPCSTR file, LPCSTR parameters, LPCSTR folder, int showCommand);
#endif
