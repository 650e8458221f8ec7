#include "doubles/directx.h"
#include "gfx/display.h"
#include "gfx/error.h"
#include "menu/menu_fixture.h"
#include "sound/sound.h"

using namespace menu_items;

namespace
{
class OptionsPageTest : public MenuFixture
{
protected:
    void Open() { ClickMain(BUTTON_OPTIONS); }
    void ClickToggle(int id) { Click(menu.optionsMenu, menu.optionsMenu.FindToggle(id)); }
};
}

TEST_F(OptionsPageTest, SoundOffStopsTheMusicAndAFailedSwitchOfTheDisplayKeepsTheMode)
{
    const struct {
        int toggle;
        bool fails, windowed, music;
        const char* stored;
    } cases[] = {
        { TOGGLE_SOUND_OFF, false, true, false, "No Sound\" = 1" },
        { TOGGLE_SOUND_ON, false, true, true, "No Sound\" = 0" },
        { TOGGLE_FULL_SCREEN, true, true, true, "Windowed = 1" },
        { TOGGLE_FULL_SCREEN, false, false, true, "Windowed = 0" },
        { TOGGLE_WINDOWED, false, true, true, "Windowed = 1" },
    };
    for (const auto& row : cases) {
        directX.Fail("SetDisplayMode", row.fails);
        Open();
        ClickToggle(row.toggle);
        Press(VK_RETURN);
        EXPECT_EQ(isWindowed, row.windowed);
        EXPECT_EQ(directX.fullScreen, !row.windowed);
        EXPECT_EQ(directX.buffers[SOUND_MUSIC]->playing, row.music);
        EXPECT_NE(Stored().find(row.stored), std::string::npos) << Stored();
        lastError = ENGINE_NO_ERROR;
    }
}
