#pragma once

/// Files, folders, the single-instance mutex, sleeping and movable memory (kernel32).
#ifdef _WIN32
#include <windows.h>
#else
#include "platform/types.h"

#include <cstddef>

constexpr DWORD ERROR_SUCCESS = 0;
constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
constexpr DWORD ERROR_ACCESS_DENIED = 5;
constexpr DWORD ERROR_INVALID_HANDLE = 6;
constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
constexpr DWORD ERROR_WRITE_FAULT = 29;
constexpr DWORD ERROR_READ_FAULT = 30;
constexpr DWORD ERROR_ALREADY_EXISTS = 183;
constexpr DWORD ERROR_MORE_DATA = 234;

constexpr DWORD GENERIC_READ = 0x80000000;
constexpr DWORD FILE_SHARE_READ = 1;
constexpr DWORD OPEN_EXISTING = 3;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
constexpr DWORD FILE_BEGIN = 0;
constexpr DWORD MAX_PATH = 4096;
constexpr UINT GMEM_FIXED = 0;

inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(static_cast<intptr_t>(-1));

struct SECURITY_ATTRIBUTES;
struct OVERLAPPED;

/// The error of this thread's last failed call.
DWORD GetLastError();

/// A mutex known by name to every process that keeps its settings in the same folder. The system drops it when its
/// owner dies. An existing one is opened and GetLastError gives ERROR_ALREADY_EXISTS. Null on failure, with a line on
/// the error output.
HANDLE CreateMutexA(SECURITY_ATTRIBUTES* security, BOOL initialOwner, LPCSTR name);

/// Stores an error for GetLastError.
void SetLastError(DWORD error);

/// Closes a file or a mutex.
BOOL CloseHandle(HANDLE handle);

/// The running program's full path into `path`; returns its length, 0 on failure.
DWORD GetModuleFileNameA(HMODULE module, LPSTR path, DWORD size);

/// Goes to the program's folder: that of its data, which for an installed program is another.
BOOL SetCurrentDirectoryA(LPCSTR path);
/// The current folder into `path`; returns its length, 0 on failure.
DWORD GetCurrentDirectoryA(DWORD size, LPSTR path);

/// Opens an existing file for reading. Both slashes separate; a name that is not found as written is looked
/// for without regard to letter case. INVALID_HANDLE_VALUE on failure; a folder is not a file.
HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security, DWORD disposition,
                   DWORD attributes, HANDLE templateFile);
BOOL ReadFile(HANDLE file, LPVOID buffer, DWORD size, LPDWORD bytesRead, OVERLAPPED* overlapped);
DWORD SetFilePointer(HANDLE file, LONG distance, LONG* distanceHigh, DWORD method);
DWORD GetFileSize(HANDLE file, LPDWORD sizeHigh);

void Sleep(DWORD milliseconds);

/// For whoever looks for the cause of a failure: a debugger on Windows, the error output here.
void OutputDebugStringA(LPCSTR text);

/// Memory from the C heap; null when there is none left.
HGLOBAL GlobalAlloc(UINT flags, size_t bytes);
HGLOBAL GlobalFree(HGLOBAL memory);
#endif
