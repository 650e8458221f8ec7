#include "menu/menu_fixture.h"

#include "app/globals.h"
#include "app/log.h"
#include "doubles/fake_platform.h"
#include "gfx/display.h"
#include "sound/sound.h"
#include "support/settings_store.h"

void MenuFixture::SetUp()
{
    GameFixture::SetUp();
    UseFreshSettings(pictures.folder);
    ClearLog();
    gameWindow = FAKE_WINDOW;
    isWindowed = true;
    ASSERT_TRUE(DisplaySetMode(gameWindow, 640, 480, true));
    SoundInit(gameWindow);
    SoundSetMute(0);
    const WAVEFORMATEX format{ 1, 2, 22050, 88200, 4, 16, 0 };
    for (int id = SOUND_MENU_HOVER; id <= SOUND_MENU_ENV_LAST; ++id)
        ASSERT_TRUE(SoundCreate(id, &format, 16));
    ASSERT_EQ(menu.SettingsLoad(), 0);
    bool loaded = false;
    while (!loaded)
        ASSERT_TRUE(menu.DataLoad(loaded));
    ASSERT_TRUE(menu.SectionBegin());
}

void MenuFixture::TearDown()
{
    SoundRelease();
    SoundSetMute(0);
    DisplayRelease();
    isWindowed = true;
    gameWindow = nullptr;
    UseNoSettings();
}

void MenuFixture::Frame()
{
    EXPECT_TRUE(menu.SectionProcess());
    if (captureScreen)
        backBuffer.Draw(screenCopy);
    captureScreen = false;
}

void MenuFixture::Press(int key)
{
    input.lastKeyDown = key;
    Frame();
}

void MenuFixture::Type(const std::string& text)
{
    for (const char c : text) {
        input.lastChar = c;
        Press(c >= 'a' ? c - 'a' + 'A' : c);
    }
}

std::string MenuFixture::OpenPages() const
{
    struct Page {
        const char* name;
        const CMenu& page;
    };
    std::string names;
    for (const Page& row :
         { Page{ "main", menu.mainMenu }, Page{ "options", menu.optionsMenu }, Page{ "ranking", menu.rankingMenu },
           Page{ "help1", menu.helpMenus[0] }, Page{ "help2", menu.helpMenus[1] }, Page{ "help3", menu.helpMenus[2] },
           Page{ "help4", menu.helpMenus[3] } }) {
        if (row.page.isVisible && row.page.isActive)
            names += (names.empty() ? "" : "+") + std::string(row.name);
    }
    return names;
}
