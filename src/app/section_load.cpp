#include "app/section_load.h"

#include "app/frame_images.h"
#include "app/input.h"
#include "app/log.h"
#include "app/scenes.h"
#include "game/section_main.h"
#include "menu/section_menu.h"
#include "platform/window.h"
#include "res/pack_file.h"

bool CSectionLoad::SectionBegin()
{
    sectionMenu.SettingsLoad();
    SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    // Without a pack the pictures may be loose files; if not, the first step that misses one fails.
    OpenPack("Dat\\Image.xpf");
    WriteLog("CSectionLoad::SectionBegin");
    return true;
}

bool CSectionLoad::SectionEnd()
{
    WriteLog("CSectionLoad::SectionEnd");
    return true;
}

bool CSectionLoad::SectionProcess()
{
    constexpr uint16_t BLACK = 0;
    backBuffer.Fill(BLACK);
    if (!menuLoaded)
        return sectionMenu.DataLoad(menuLoaded);
    if (!pondLoaded)
        return sectionMain.pond.DataLoad(pondLoaded);
    if (!statusBarLoaded)
        return sectionMain.pond.statusBar.DataLoad(statusBarLoaded);
    RequestMenu();
    input.DropPresses(); // those from while the program loaded
    return true;
}
