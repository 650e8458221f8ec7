#pragma once

#include "platform/window.h"

#include <cstdint>

/// The application: its window, the frame clock and the switching of scenes. One global object.
class CGame
{
public:
    CGame(const char* name, int width, int height, bool windowed);
    /// Saves the settings and closes the instance mutex.
    virtual ~CGame();

    /// Start-up once the window exists: folder, random seed, log, display, sound, global images. False when the
    /// display mode cannot be set or an image not be made; `lastError` says why.
    bool Create();
    /// The end, run from the window's destroy message.
    void Destroy();
    LRESULT WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// One pass of the frame clock; does nothing until 40 ms have passed since the last frame.
    void FrameTick();

    char name[256]; ///< window class, window title and instance mutex
    bool windowed;  ///< display mode at the start
    int width;      ///< client size in pixels
    int height;
};

extern CGame game;
extern HANDLE instanceMutex;   ///< marks a running copy
extern uint32_t frameTime;     ///< clock of the last tick, ms
extern uint32_t nextFrameTime; ///< earliest time of the next frame, ms; 0 = no frame yet

/// Makes the instance mutex, the window class, the window and all that CGame::Create makes. False when another copy
/// runs or a step fails.
bool CreateGameWindow(HINSTANCE instance);

/// Dispatches messages and, whenever none waits, ticks, until the quit message; returns its code.
int RunMessageLoop();

/// The whole program: window, then message loop. Returns the exit code, also 0 when it could not start.
int RunGame(HINSTANCE instance);
