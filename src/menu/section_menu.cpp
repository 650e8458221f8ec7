#include "menu/section_menu.h"

#include "app/frame_images.h"
#include "app/game_window.h"
#include "app/input.h"
#include "app/log.h"
#include "app/random.h"
#include "app/scenes.h"
#include "gfx/image.h"
#include "platform/kernel.h"
#include "platform/shell.h"
#include "platform/window.h"
#include "sound/sound.h"

#include <algorithm>
#include <iterator>

namespace
{

constexpr DWORD NO_FOCUS_SLEEP_MS = 100;
constexpr uint32_t STILL_OPACITY = 128; // half brightness
constexpr int AMBIENCE_FRAMES = 1000;   // each ambience sound comes once in as many frames, on average

void OpenHomePage()
{
    ShowWindow(gameWindow, SW_MINIMIZE);
    ShellExecuteA(gameWindow, nullptr, HOME_PAGE, nullptr, nullptr, SW_SHOWNORMAL);
}
}

bool CSectionMenu::SectionBegin()
{
    mainMenu.Show();
    optionsMenu.Hide();
    rankingMenu.Hide();
    for (CMenu& page : helpMenus)
        page.Hide();
    input.DropPresses();
    if (rankEntryPending != 0)
        OpenPage(rankingMenu);
    SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    SoundPlay(SOUND_MUSIC, true);
    WriteLog("CSectionMenu::SectionBegin");
    return true;
}

bool CSectionMenu::SectionEnd()
{
    if (rankEntryPending != 0)
        RankingPageStore(); // the window closes before the name is confirmed: what was typed counts
    // The music goes on under the game.
    for (int id = SOUND_MENU_ENV_FIRST; id <= SOUND_MENU_ENV_LAST; ++id)
        SoundStop(id);
    WriteLog("CSectionMenu::SectionEnd");
    return true;
}

bool CSectionMenu::SectionProcess()
{
    if (!input.hasFocus) {
        Sleep(NO_FOCUS_SLEEP_MS);
        return true;
    }
    DrawBackground();
    optionsMenu.MenuProcess(backBuffer);
    rankingMenu.MenuProcess(backBuffer);
    for (CMenu& page : helpMenus)
        page.MenuProcess(backBuffer);

    if (mainMenu.IsOpen() && !MainMenuProcess())
        return true;
    if (optionsMenu.IsOpen())
        OptionsPageProcess();
    if (rankingMenu.IsOpen())
        RankingPageProcess();
    for (int page = 0; page < HELP_PAGES; ++page) {
        if (helpMenus[page].IsOpen())
            HelpPageProcess(page);
    }
    PlayAmbience();
    return true;
}

void CSectionMenu::DrawBackground()
{
    if (mainMenu.isActive) {
        mainMenu.MenuProcess(backBuffer);
        return;
    }
    screenCopy.blit = BlitFadeToBlack;
    screenCopy.opacity = STILL_OPACITY;
    screenCopy.Draw(backBuffer);
}

/// False once the window is gone: nothing of the scene may be touched any more in this frame.
bool CSectionMenu::MainMenuProcess()
{
    struct Row {
        int button;
        void (*act)(CSectionMenu& menu);
    };
    static constexpr Row actions[] = {
        { BUTTON_HOME_PAGE, [](CSectionMenu&) { OpenHomePage(); } },
        { BUTTON_ONE_PLAYER, [](CSectionMenu& menu) { menu.StartGame(0); } },
        { BUTTON_TWO_PLAYERS, [](CSectionMenu& menu) { menu.StartGame(1); } },
        { BUTTON_RANKING, [](CSectionMenu& menu) { menu.OpenRanking(); } },
        { BUTTON_OPTIONS, [](CSectionMenu& menu) { menu.OpenOptions(); } },
        { BUTTON_HELP, [](CSectionMenu& menu) { menu.OpenHelp(); } },
    };

    const auto isVisible = [](const CMenu& page) { return page.isVisible; };
    if (std::none_of(std::begin(helpMenus), std::end(helpMenus), isVisible) && input.TakeKey({ VK_F1 }))
        mainMenu.FindButton(BUTTON_HELP)->clicked = true;
    for (const Row& row : actions) {
        if (mainMenu.FindButton(row.button)->clicked) {
            row.act(*this);
            return true;
        }
    }
    if (!mainMenu.FindButton(BUTTON_QUIT)->clicked)
        return true;
    DestroyWindow(gameWindow);
    return false;
}

void CSectionMenu::StartGame(uint32_t secondPlayer)
{
    mainMenu.isVisible = false;
    twoPlayers = secondPlayer;
    RequestGame();
}

void CSectionMenu::OpenRanking()
{
    OpenPage(rankingMenu);
    RankingPageFill();
    captureScreen = true;
}

void CSectionMenu::OpenOptions()
{
    OpenPage(optionsMenu);
    OptionsPageOpen();
    captureScreen = true;
}

void CSectionMenu::OpenHelp()
{
    OpenPage(helpMenus[0]);
    captureScreen = true;
}

/// The main menu stays visible, dimmed: a still of the frame that is being drawn.
void CSectionMenu::OpenPage(CMenu& page)
{
    mainMenu.isActive = false;
    page.Show();
    input.DropPresses();
}

void CSectionMenu::ClosePage(CMenu& page)
{
    page.isVisible = false;
    mainMenu.Show();
    input.DropPresses();
}

void CSectionMenu::HelpPageProcess(int page)
{
    const int next = ProcessHelpPage(helpMenus[page], BUTTON_HELP_FIRST, page);
    if (next == HELP_STAY)
        return;
    ClosePage(helpMenus[page]);
    if (next != HELP_CLOSE)
        OpenPage(helpMenus[next]);
}

void CSectionMenu::PlayAmbience()
{
    const int id = Random() % AMBIENCE_FRAMES;
    if (id >= SOUND_MENU_ENV_FIRST && id <= SOUND_MENU_ENV_LAST)
        SoundPlay(id, false);
}
