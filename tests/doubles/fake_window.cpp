#include "doubles/fake_handle.h"
#include "doubles/fake_platform.h"
#include "platform/gdi.h"
#include "platform/kernel.h"
#include "platform/multimedia.h"
#include "platform/shell.h"

#include <cstdint>

namespace
{
/// What the frame and the title add around a client area.
constexpr int BORDER = 4;
constexpr int TITLE = 20;

int arrowCursor;
int anyIcon;
int windowContext;
}

const HWND FAKE_WINDOW = reinterpret_cast<HWND>(static_cast<uintptr_t>(0x1234));

ATOM WINAPI RegisterClassA(const WNDCLASSA* windowClass)
{
    fake.Enter("RegisterClassA");
    fake.procedure = windowClass->lpfnWndProc;
    fake.className = windowClass->lpszClassName;
    return 1;
}

HWND WINAPI CreateWindowExA(DWORD extendedStyle, LPCSTR, LPCSTR title, DWORD style, int x, int y, int width, int height,
                            HWND, HMENU, HINSTANCE, LPVOID)
{
    if (fake.Enter("CreateWindowExA"))
        return nullptr;
    fake.windowExists = true;
    fake.title = title;
    fake.style = style;
    fake.extendedStyle = extendedStyle;
    fake.outer = { x, y, x + width, y + height };
    return FAKE_WINDOW;
}

BOOL WINAPI DestroyWindow(HWND)
{
    fake.Enter("DestroyWindow");
    fake.Send(WM_DESTROY);
    fake.windowExists = false;
    return TRUE;
}

BOOL WINAPI ShowWindow(HWND, int command)
{
    fake.Enter("ShowWindow");
    fake.windowMinimised = command == SW_MINIMIZE;
    return TRUE;
}

BOOL WINAPI SetWindowPos(HWND, HWND insertAfter, int x, int y, int width, int height, UINT flags)
{
    fake.Enter("SetWindowPos");
    if (!(flags & SWP_NOMOVE))
        fake.outer = { x, y, x + fake.outer.right - fake.outer.left, y + fake.outer.bottom - fake.outer.top };
    if (!(flags & SWP_NOSIZE)) {
        fake.outer.right = fake.outer.left + width;
        fake.outer.bottom = fake.outer.top + height;
    }
    if (!(flags & SWP_NOZORDER))
        fake.topmost = insertAfter == HWND_TOPMOST;
    if (flags & SWP_SHOWWINDOW)
        fake.windowShown = true;
    return TRUE;
}

LONG WINAPI GetWindowLongA(HWND, int index)
{
    return static_cast<LONG>(index == GWL_STYLE ? fake.style : fake.extendedStyle);
}

LONG WINAPI SetWindowLongA(HWND window, int index, LONG value)
{
    const LONG old = GetWindowLongA(window, index);
    (index == GWL_STYLE ? fake.style : fake.extendedStyle) = static_cast<DWORD>(value);
    return old;
}

HMENU WINAPI GetMenu(HWND)
{
    return nullptr;
}

BOOL WINAPI AdjustWindowRectEx(RECT* rectangle, DWORD style, BOOL, DWORD)
{
    if (!(style & WS_CAPTION))
        return TRUE;
    rectangle->left -= BORDER;
    rectangle->right += BORDER;
    rectangle->top -= BORDER + TITLE;
    rectangle->bottom += BORDER;
    return TRUE;
}

int WINAPI GetSystemMetrics(int index)
{
    return index == SM_CXSCREEN ? fake.screenWidth : fake.screenHeight;
}

BOOL WINAPI RedrawWindow(HWND, const RECT*, HRGN, UINT)
{
    fake.Enter("RedrawWindow");
    return TRUE;
}

BOOL WINAPI PeekMessageA(MSG* message, HWND, UINT, UINT, UINT)
{
    if (fake.queue.empty() && !fake.quitPosted)
        return FALSE;
    if (!fake.queue.empty())
        *message = fake.queue.front();
    return TRUE;
}

BOOL WINAPI GetMessageA(MSG* message, HWND, UINT, UINT)
{
    *message = MSG{};
    if (fake.queue.empty()) {
        message->message = WM_QUIT;
        message->wParam = static_cast<WPARAM>(fake.exitCode);
        return FALSE;
    }
    *message = fake.queue.front();
    fake.queue.pop_front();
    return TRUE;
}

BOOL WINAPI TranslateMessage(const MSG*)
{
    return FALSE;
}

LRESULT WINAPI DispatchMessageA(const MSG* message)
{
    return fake.Send(message->message, message->wParam, message->lParam);
}

LRESULT WINAPI DefWindowProcA(HWND, UINT, WPARAM, LPARAM)
{
    fake.Enter("DefWindowProcA");
    return 0;
}

void WINAPI PostQuitMessage(int exitCode)
{
    fake.quitPosted = true;
    fake.exitCode = exitCode;
}

HICON WINAPI LoadIconA(HINSTANCE, LPCSTR)
{
    return reinterpret_cast<HICON>(&anyIcon);
}

HCURSOR WINAPI LoadCursorA(HINSTANCE, LPCSTR)
{
    return reinterpret_cast<HCURSOR>(&arrowCursor);
}

HCURSOR WINAPI SetCursor(HCURSOR cursor)
{
    fake.cursorShown = cursor != nullptr;
    return nullptr;
}

int WINAPI MessageBoxA(HWND, LPCSTR text, LPCSTR title, UINT)
{
    fake.messageBoxes.push_back(std::string(title) + ": " + text);
    return 1;
}

HDC WINAPI GetDC(HWND)
{
    return fake.Enter("GetDC") ? nullptr : reinterpret_cast<HDC>(&windowContext);
}

int WINAPI ReleaseDC(HWND, HDC)
{
    fake.Enter("ReleaseDC");
    return 1;
}

int WINAPI SetDIBitsToDevice(HDC, int, int, DWORD width, DWORD height, int, int, UINT, UINT scanLines, LPCVOID bits,
                             const BITMAPINFO* info, UINT)
{
    if (fake.Enter("SetDIBitsToDevice"))
        return 0;
    const auto* row = static_cast<const uint16_t*>(bits);
    fake.screen.clear();
    for (DWORD y = 0; y < height; ++y, row += info->bmiHeader.biWidth)
        fake.screen.insert(fake.screen.end(), row, row + width);
    ++fake.framesPresented;
    return static_cast<int>(scanLines);
}

HANDLE WINAPI CreateMutexA(SECURITY_ATTRIBUTES*, BOOL, LPCSTR)
{
    if (fake.Enter("CreateMutexA"))
        return nullptr;
    const HANDLE mutex = NewFakeHandle();
    SetLastError(fake.otherCopyRuns ? ERROR_ALREADY_EXISTS : ERROR_SUCCESS);
    return mutex;
}

DWORD WINAPI GetModuleFileNameA(HMODULE, LPSTR path, DWORD size)
{
    const size_t length = fake.programPath.copy(path, size - 1);
    path[length] = 0;
    return static_cast<DWORD>(length);
}

void WINAPI Sleep(DWORD milliseconds)
{
    fake.Enter("Sleep");
    fake.now += milliseconds;
}

DWORD WINAPI timeGetTime()
{
    return fake.now;
}

HINSTANCE WINAPI ShellExecuteA(HWND, LPCSTR, LPCSTR file, LPCSTR, LPCSTR, int)
{
    fake.opened.emplace_back(file);
    return reinterpret_cast<HINSTANCE>(static_cast<uintptr_t>(33));
}
