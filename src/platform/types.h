#pragma once

/// The scalar types and handles of the system's interfaces. On Windows they are the system's own.
#ifdef _WIN32
#include <windows.h>
#else
#include <cstdint>

using BOOL = int;
using BYTE = uint8_t;
using WORD = uint16_t;
using DWORD = uint32_t;
using LONG = int32_t;
using UINT = uint32_t;
using HRESULT = int32_t;
using ULONG = uint32_t;
using WPARAM = uintptr_t;
using LPARAM = intptr_t;
using LRESULT = intptr_t;
using ATOM = uint16_t;
using LPCSTR = const char*;
using LPSTR = char*;
using LPVOID = void*;
using LPCVOID = const void*;
using LPDWORD = DWORD*;
using HANDLE = void*;

/// Handles are distinct pointer types, so that one kind cannot be passed for another.
using HWND = struct HWND__*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HICON = struct HICON__*;
using HCURSOR = HICON;
using HMENU = struct HMENU__*;
using HBRUSH = struct HBRUSH__*;
using HDC = struct HDC__*;
using HFONT = struct HFONT__*;
using HGDIOBJ = void*;
using HRGN = struct HRGN__*;
using HGLOBAL = void*;

constexpr BOOL FALSE = 0;
constexpr BOOL TRUE = 1;

/// Calling conventions mean nothing outside Windows on x86.
#define WINAPI
#define CALLBACK

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

struct POINT {
    LONG x;
    LONG y;
};

struct GUID {
    uint32_t Data1;
    uint16_t Data2;
    uint16_t Data3;
    uint8_t Data4[8];
};

constexpr WORD LOWORD(uintptr_t value)
{
    return static_cast<WORD>(value & 0xFFFF);
}
constexpr WORD HIWORD(uintptr_t value)
{
    return static_cast<WORD>((value >> 16) & 0xFFFF);
}
constexpr LPARAM MAKELPARAM(int low, int high)
{
    return static_cast<LPARAM>((static_cast<uint32_t>(high) & 0xFFFF) << 16 | (static_cast<uint32_t>(low) & 0xFFFF));
}
#endif
