#pragma once

/// Windows, messages, cursor, message box (user32).
#ifdef _WIN32
#include <windows.h>
#else
#include "platform/types.h"

// Messages
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_SETFOCUS = 0x0007;
constexpr UINT WM_KILLFOCUS = 0x0008;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_SETCURSOR = 0x0020;
constexpr UINT WM_NCLBUTTONDBLCLK = 0x00A3;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_SYSKEYUP = 0x0105;
constexpr UINT WM_SYSCOMMAND = 0x0112;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;

constexpr WPARAM SC_MAXIMIZE = 0xF030;
constexpr WPARAM SC_CLOSE = 0xF060;
constexpr WPARAM HTCAPTION = 2;

// Virtual-key codes. Letters and digits are their capital ASCII characters.
constexpr int VK_BACK = 0x08;
constexpr int VK_TAB = 0x09;
constexpr int VK_RETURN = 0x0D;
constexpr int VK_SHIFT = 0x10;
constexpr int VK_CONTROL = 0x11;
constexpr int VK_MENU = 0x12;
constexpr int VK_PAUSE = 0x13;
constexpr int VK_CAPITAL = 0x14;
constexpr int VK_ESCAPE = 0x1B;
constexpr int VK_SPACE = 0x20;
constexpr int VK_PRIOR = 0x21;
constexpr int VK_NEXT = 0x22;
constexpr int VK_END = 0x23;
constexpr int VK_HOME = 0x24;
constexpr int VK_LEFT = 0x25;
constexpr int VK_UP = 0x26;
constexpr int VK_RIGHT = 0x27;
constexpr int VK_DOWN = 0x28;
constexpr int VK_SNAPSHOT = 0x2C;
constexpr int VK_INSERT = 0x2D;
constexpr int VK_DELETE = 0x2E;
constexpr int VK_LWIN = 0x5B;
constexpr int VK_RWIN = 0x5C;
constexpr int VK_APPS = 0x5D;
constexpr int VK_NUMPAD0 = 0x60;
constexpr int VK_NUMPAD9 = 0x69;
constexpr int VK_MULTIPLY = 0x6A;
constexpr int VK_ADD = 0x6B;
constexpr int VK_SUBTRACT = 0x6D;
constexpr int VK_DECIMAL = 0x6E;
constexpr int VK_DIVIDE = 0x6F;
constexpr int VK_F1 = 0x70;
constexpr int VK_F4 = 0x73;
constexpr int VK_F10 = 0x79;
constexpr int VK_F12 = 0x7B;
constexpr int VK_F24 = 0x87;
constexpr int VK_NUMLOCK = 0x90;
constexpr int VK_SCROLL = 0x91;

// Window styles, placement and metrics
constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_CAPTION = 0x00C00000;
constexpr DWORD WS_SYSMENU = 0x00080000;
constexpr DWORD WS_THICKFRAME = 0x00040000;
constexpr DWORD WS_MINIMIZEBOX = 0x00020000;
constexpr DWORD WS_MAXIMIZEBOX = 0x00010000;
constexpr DWORD WS_OVERLAPPEDWINDOW = WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
constexpr UINT CS_VREDRAW = 1;
constexpr UINT CS_HREDRAW = 2;
constexpr int GWL_STYLE = -16;
constexpr int GWL_EXSTYLE = -20;
constexpr UINT SWP_NOSIZE = 0x0001;
constexpr UINT SWP_NOMOVE = 0x0002;
constexpr UINT SWP_NOZORDER = 0x0004;
constexpr UINT SWP_NOACTIVATE = 0x0010;
constexpr UINT SWP_SHOWWINDOW = 0x0040;
constexpr int SW_MINIMIZE = 6;
constexpr int SW_SHOWNORMAL = 1;
constexpr UINT RDW_INVALIDATE = 0x0001;
constexpr UINT RDW_ERASE = 0x0004;
constexpr UINT RDW_ALLCHILDREN = 0x0080;
constexpr UINT RDW_UPDATENOW = 0x0100;
constexpr int SM_CXSCREEN = 0;
constexpr int SM_CYSCREEN = 1;
constexpr UINT PM_NOREMOVE = 0;
constexpr UINT MB_ICONERROR = 0x10;

inline const HWND HWND_TOPMOST = reinterpret_cast<HWND>(static_cast<intptr_t>(-1));
inline const HWND HWND_NOTOPMOST = reinterpret_cast<HWND>(static_cast<intptr_t>(-2));

/// A resource number in the place of a resource name.
inline LPCSTR MAKEINTRESOURCEA(int id)
{
    return reinterpret_cast<LPCSTR>(static_cast<uintptr_t>(static_cast<WORD>(id)));
}
inline const LPCSTR IDC_ARROW = MAKEINTRESOURCEA(32512);

using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);

struct WNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
};

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

ATOM RegisterClassA(const WNDCLASSA* windowClass);
/// Makes the one window, hidden. The outer size includes frame and title. Null on failure.
HWND CreateWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);
/// Sends WM_DESTROY, then closes the window.
BOOL DestroyWindow(HWND window);
/// SW_MINIMIZE alone. False for any other.
BOOL ShowWindow(HWND window, int command);
BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags);
LONG GetWindowLongA(HWND window, int index);
LONG SetWindowLongA(HWND window, int index, LONG value);
HMENU GetMenu(HWND window);
/// Grows a client rectangle to the outer rectangle of a window of that style.
BOOL AdjustWindowRectEx(RECT* rectangle, DWORD style, BOOL hasMenu, DWORD extendedStyle);
int GetSystemMetrics(int index);
BOOL RedrawWindow(HWND window, const RECT* area, HRGN region, UINT flags);

BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove);
/// Takes the next message, waiting for one; 0 for WM_QUIT.
BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last);
/// Posts the character message of a key message.
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageA(const MSG* message);
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int exitCode);

HICON LoadIconA(HINSTANCE instance, LPCSTR name);
HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name);
/// Shows this cursor over the window; null hides it.
HCURSOR SetCursor(HCURSOR cursor);
int MessageBoxA(HWND owner, LPCSTR text, LPCSTR title, UINT type);

HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC context);

/// The program's entry point, called by the system with the start-up parameters.
int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int showCommand);
#endif
