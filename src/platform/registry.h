#pragma once

/// Per-user values (advapi32).
#ifdef _WIN32
#include <windows.h>
#else
#include "platform/kernel.h"
#include "platform/types.h"

using HKEY = struct HKEY__*;

inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(static_cast<uintptr_t>(0x80000001));
constexpr DWORD REG_OPTION_NON_VOLATILE = 0;
constexpr DWORD KEY_ALL_ACCESS = 0xF003F;
constexpr DWORD REG_SZ = 1;
constexpr DWORD REG_DWORD = 4;

/// Opens a key, making it when it is missing. Returns an error code, 0 for success.
LONG RegCreateKeyExA(HKEY parent, LPCSTR subKey, DWORD reserved, LPSTR keyClass, DWORD options, DWORD access,
                     SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition);
/// ERROR_FILE_NOT_FOUND when there is no such value, ERROR_MORE_DATA when it is longer than `*size`.
LONG RegQueryValueExA(HKEY key, LPCSTR name, DWORD* reserved, DWORD* type, BYTE* data, DWORD* size);
LONG RegSetValueExA(HKEY key, LPCSTR name, DWORD reserved, DWORD type, const BYTE* data, DWORD size);
/// Writes what was set since the key was opened, whole or not at all, and closes it. Nothing is written, and the result
/// is ERROR_NOT_ENOUGH_MEMORY, when memory lacked for one of the values read or set.
LONG RegCloseKey(HKEY key);
#endif
