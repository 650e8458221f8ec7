#include "app/game.h"

#include "app/frame_images.h"
#include "app/game_window.h"
#include "app/log.h"
#include "app/random.h"
#include "app/scenes.h"
#include "app/section.h"
#include "gfx/display.h"
#include "menu/section_menu.h"
#include "platform/kernel.h"
#include "platform/multimedia.h"
#include "sound/sound.h"

#include <cstdio>
#include <ctime>
#include <string>
#include <typeinfo>

namespace
{
constexpr uint32_t FRAME_MS = 40;

/// Every relative path is resolved from the program's own folder. False: the current folder is still another.
bool EnterProgramFolder()
{
    char path[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, path, sizeof(path));
    const std::string program = path;
    const size_t folderEnd = program.find_last_of("\\/");
    return folderEnd != std::string::npos && SetCurrentDirectoryA(program.substr(0, folderEnd + 1).c_str());
}

/// Makes the requested scene current if it is of another class. False when a scene operation failed.
bool SwitchScene()
{
    if (currentSection && typeid(*requestedSection) == typeid(*currentSection))
        return true;
    if (currentSection && !currentSection->SectionEnd())
        return false;
    currentSection = requestedSection;
    return currentSection->SectionBegin();
}
}

CGame::CGame(const char* windowName, int clientWidth, int clientHeight, bool startWindowed)
    : windowed(startWindowed), width(clientWidth), height(clientHeight)
{
    std::snprintf(name, sizeof(name), "%s", windowName);
}

CGame::~CGame()
{
    sectionMenu.SettingsSave();
    if (instanceMutex)
        CloseHandle(instanceMutex);
}

bool CGame::Create()
{
    if (EnterProgramFolder())
        ClearLog();
    SeedRandom(static_cast<uint32_t>(std::time(nullptr)));
    if (!DisplaySetMode(gameWindow, width, height, windowed))
        return false;
    SoundInit(gameWindow);
    const bool created = backBuffer.Create(width, height) && pondImage.Create(height, height) &&
                         screenCopy.Create(width, height) && waterBufferA.Create(height, height) &&
                         waterBufferB.Create(height, height);
    if (!created)
        return false;
    WriteLog("CGame::Create");
    return true;
}

void CGame::Destroy()
{
    if (requestedSection) {
        requestedSection->SectionEnd();
        requestedSection = nullptr;
    }
    for (CImage* image : { &backBuffer, &pondImage, &screenCopy, &waterBufferA, &waterBufferB })
        image->Free();
    SoundRelease();
    DisplayRelease();
    WriteLog("CGame::Destroy");
}

void CGame::FrameTick()
{
    // One reading of the clock for the whole tick: two could straddle a tick and run one frame twice.
    const uint32_t now = timeGetTime();
    frameTime = now;
    if (nextFrameTime != 0 && now < nextFrameTime)
        return;
    nextFrameTime = now + FRAME_MS; // from now, not from the last deadline: a late frame is never made up

    if (requestedSection && !(SwitchScene() && currentSection->SectionProcess())) {
        DestroyWindow(gameWindow);
        return;
    }
    if (captureScreen) {
        backBuffer.Draw(screenCopy);
        captureScreen = false;
    }
    DisplayPresent(backBuffer);
}
