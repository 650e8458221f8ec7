#include "app/game.h"
#include "app/input.h"
#include "app/mode_switch.h"
#include "gfx/display.h"
#include "gfx/error.h"

namespace
{
void StoreMousePosition(LPARAM position)
{
    // Signed: beyond the left or top edge while a button is held.
    input.mouseX = static_cast<int16_t>(LOWORD(position));
    input.mouseY = static_cast<int16_t>(HIWORD(position));
}
}

LRESULT CGame::WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_DESTROY:
        Destroy();
        ShowLastError();
        PostQuitMessage(0);
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        input.hasFocus = message == WM_SETFOCUS;
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_SETCURSOR:
        return 0; // no default processing: scenes set the cursor
    case WM_NCLBUTTONDBLCLK:
        SwitchDisplayMode(window, width, height, false);
        return 0;
    case WM_KEYDOWN:
        input.lastKeyDown = static_cast<int>(wParam);
        return 0;
    case WM_KEYUP:
        input.lastKeyUp = static_cast<int>(wParam);
        return 0;
    case WM_CHAR:
        input.lastChar = static_cast<char>(wParam & 0xFF);
        return 0;
    case WM_SYSKEYUP: // Alt+Enter acts on release, so that a held key does not switch back and forth
        if (wParam != VK_RETURN)
            break;
        SwitchDisplayMode(window, width, height, !isWindowed);
        return 0;
    case WM_SYSCOMMAND:
        if (wParam != SC_MAXIMIZE)
            break;
        SwitchDisplayMode(window, width, height, false);
        return 0;
    case WM_MOUSEMOVE:
        StoreMousePosition(lParam);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
        StoreMousePosition(lParam);
        input.mouseLeftDown = message == WM_LBUTTONDOWN;
        return 0;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
        StoreMousePosition(lParam);
        input.mouseRightDown = message == WM_RBUTTONDOWN;
        return 0;
    default:
        break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}
