// The long-lived objects, in their order of construction.

#include "app/frame_images.h"
#include "app/game.h"
#include "app/game_window.h"
#include "app/input.h"
#include "app/scenes.h"
#include "app/section_load.h"
#include "game/geometry.h"
#include "game/section_main.h"
#include "menu/section_menu.h"
#include "res/pack_file.h"

HWND gameWindow = nullptr;
HINSTANCE gameInstance = nullptr;
HANDLE instanceMutex = nullptr;

CSection* requestedSection = &sectionLoad;
CSection* currentSection = nullptr;
uint32_t frameTime = 0;
uint32_t nextFrameTime = 0;
bool captureScreen = false;
InputState input;

CImage backBuffer;
CImage pondImage;
CImage screenCopy;
CImage waterBufferA;
CImage waterBufferB;

bool menuLoaded = false;
bool pondLoaded = false;
bool statusBarLoaded = false;

CPackFile packTable[PACK_SLOTS];

// The menu scene holds the settings that the application object saves when it is destroyed, so it comes first.
CSectionMenu sectionMenu;
CSectionMain sectionMain;
CSectionLoad sectionLoad;
CGame game("Tervalis", SCREEN_WIDTH, SCREEN_HEIGHT, true);
