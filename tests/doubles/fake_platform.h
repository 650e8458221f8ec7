#pragma once

#include "platform/window.h"

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

/// A sound buffer of the fake device, as a test sees it.
struct FakeSoundBuffer {
    std::vector<uint8_t> bytes;
    uint32_t samplesPerSecond = 0;
    bool playing = false;
    bool looping = false;
    int plays = 0; ///< Play calls
    int stops = 0; ///< Stop calls
};

/// The tests' stand-in for the system: what the game does to it is recorded, and any call can be made to fail.
/// Files, fonts, RIFF files and the registry are the real ones of the base layer.
struct FakePlatform {
    /// Back to the state before the program's start.
    void Reset();

    /// Lets the next `times` calls of that function or method fail (-1: all of them).
    void Fail(const std::string& call, int times = -1) { failures[call] = times; }
    /// Records a call; true when it is to fail.
    bool Enter(const std::string& call);
    /// How often a function or method was called since Reset.
    int Calls(const std::string& call) const;

    std::vector<std::string> calls; ///< names in order
    std::map<std::string, int> failures;

    uint32_t now = 1000;     ///< the clock, ms; Sleep advances it
    std::string programPath; ///< what GetModuleFileNameA answers
    bool otherCopyRuns = false;

    // The window
    bool windowExists = false;
    bool windowShown = false;
    bool windowMinimised = false;
    bool topmost = false;
    DWORD style = 0;
    DWORD extendedStyle = 0;
    RECT outer = {};
    WNDPROC procedure = nullptr;
    std::string className;
    std::string title;
    std::deque<MSG> queue;
    bool quitPosted = false;
    int exitCode = 0;
    bool cursorShown = true;
    int screenWidth = 1024;
    int screenHeight = 768;
    std::vector<std::string> messageBoxes; ///< "title: text"
    std::vector<std::string> opened;       ///< what ShellExecuteA was given

    /// Sends a message to the window procedure at once.
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    // The screen
    std::vector<uint16_t> screen; ///< pixels of the last presented frame
    int framesPresented = 0;
    bool fullScreen = false; ///< a DirectDraw display mode is set
    int modeWidth = 0;
    int modeHeight = 0;
    uint32_t greenMask = 0x07E0; ///< of the full-screen surfaces
    bool surfacesLost = false;
    int directDrawObjects = 0; ///< alive: device, surfaces, clippers

    // Sound
    std::vector<FakeSoundBuffer*> soundBuffers; ///< alive, in order of creation, the primary one excluded
    int soundObjects = 0;                       ///< alive: device and buffers
};
extern FakePlatform fake;

/// The fake window's handle.
extern const HWND FAKE_WINDOW;
