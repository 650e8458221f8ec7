#include "menu/menu_fixture.h"

#include "app/frame_images.h"
#include "sound/sound.h"

void MenuFixture::SetUp()
{
    ProgramFixture::SetUp();
    const WAVEFORMATEX format{ 1, 2, 22050, 88200, 4, 16, 0 };
    ASSERT_EQ(menu.SettingsLoad(), 0);
    for (bool loaded = false; !loaded;)
        ASSERT_TRUE(menu.DataLoad(loaded));
    for (int id = SOUND_MENU_HOVER; id <= SOUND_MENU_ENV_LAST; ++id)
        ASSERT_TRUE(SoundCreate(id, &format, 16));
    ASSERT_TRUE(menu.SectionBegin());
}

void MenuFixture::Press(int key)
{
    if (key != 0)
        input.lastKeyDown = key;
    EXPECT_TRUE(menu.SectionProcess());
    if (captureScreen)
        backBuffer.Draw(screenCopy);
    captureScreen = false;
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
    std::string pages;
    const auto add = [&pages](char name, const CMenu& page) { pages += page.IsOpen() ? std::string(1, name) : ""; };
    add('m', menu.mainMenu);
    add('o', menu.optionsMenu);
    add('r', menu.rankingMenu);
    for (int i = 0; i < HELP_PAGES; ++i)
        add(static_cast<char>('1' + i), menu.helpMenus[i]);
    return pages;
}
