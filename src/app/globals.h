#pragma once

#include "app/input.h"
#include "gfx/image.h"
#include "platform/window.h"

#include <cstdint>

class CGame;
class CSection;
class CSectionLoad;
class CSectionMain;
class CSectionMenu;

// The long-lived objects. globals.cpp defines them in their order of construction.

extern HWND gameWindow;
extern HINSTANCE gameInstance;
extern HANDLE instanceMutex; ///< marks a running copy

extern CSection* requestedSection; ///< scene asked for; never null while the program runs
extern CSection* currentSection;
extern uint32_t frameTime;     ///< clock of the last tick, ms
extern uint32_t nextFrameTime; ///< earliest time of the next frame, ms; 0 = no frame yet
extern bool captureScreen;     ///< the next tick copies `backBuffer` into `screenCopy`
extern InputState input;

extern CImage backBuffer;   ///< the frame that scenes compose and the tick presents
extern CImage pondImage;    ///< the pond before the water ripples it
extern CImage screenCopy;   ///< a still of a finished frame, drawn back dimmed behind panels
extern CImage waterBufferA; ///< water heights
extern CImage waterBufferB;

extern bool menuLoaded; ///< set by the last loading step of their owners
extern bool pondLoaded;
extern bool statusBarLoaded;

extern CSectionMenu sectionMenu;
extern CSectionMain sectionMain;
extern CSectionLoad sectionLoad;
extern CGame game;
