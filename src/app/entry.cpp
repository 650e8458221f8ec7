#include "app/game.h"
#include "app/game_window.h"
#include "gfx/error.h"
#include "platform/gdi.h"
#include "platform/kernel.h"
#include "platform/window.h"

#include <new>

namespace
{
constexpr int ICON_ID = 101;

/// A lack of memory ends the program as every failure does: through its window's end and the error box.
void EndForLackOfMemory(HWND window)
{
    FailWith(ENGINE_ALLOCATE_MEMORY);
    if (!DestroyWindow(window))
        ShowLastError();
}

/// No exception leaves it, for its caller is the system.
LRESULT CALLBACK ForwardToGame(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    try {
        return game.WndProc(window, message, wParam, lParam);
    } catch (const std::bad_alloc&) {
        EndForLackOfMemory(window);
        if (message == WM_DESTROY) // cut short
            PostQuitMessage(0);
        return 0;
    }
}

/// False when another copy of the program runs.
bool ClaimInstance()
{
    instanceMutex = CreateMutexA(nullptr, FALSE, game.name);
    return instanceMutex && GetLastError() != ERROR_ALREADY_EXISTS;
}

void RegisterWindowClass(HINSTANCE instance)
{
    WNDCLASSA windowClass = {};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = ForwardToGame;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconA(instance, MAKEINTRESOURCEA(ICON_ID));
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    windowClass.lpszClassName = game.name;
    RegisterClassA(&windowClass);
}
}

bool CreateGameWindow(HINSTANCE instance)
{
    if (!ClaimInstance())
        return false;
    RegisterWindowClass(instance);
    HWND window = CreateWindowExA(0, game.name, game.name, WS_OVERLAPPEDWINDOW, 0, 0, game.width, game.height, nullptr,
                                  nullptr, instance, nullptr);
    if (!window)
        return false;
    gameWindow = window;
    gameInstance = instance;
    if (game.Create())
        return true;
    DestroyWindow(window);
    return false;
}

int RunMessageLoop()
{
    MSG message = {};
    for (;;) {
        if (!PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            game.FrameTick();
            continue;
        }
        if (!GetMessageA(&message, nullptr, 0, 0))
            return static_cast<int>(message.wParam);
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

int RunGame(HINSTANCE instance)
{
    try {
        return CreateGameWindow(instance) ? RunMessageLoop() : 0;
    } catch (const std::bad_alloc&) {
        EndForLackOfMemory(gameWindow);
        return 0;
    }
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int)
{
    return RunGame(instance);
}
