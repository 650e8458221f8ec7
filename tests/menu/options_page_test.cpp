#include "doubles/directx.h"
#include "gfx/display.h"
#include "gfx/error.h"
#include "menu/menu_fixture.h"
#include "sound/sound.h"

namespace
{
class OptionsPageTest : public MenuFixture
{
protected:
    void Open() { ClickMain(BUTTON_OPTIONS); }
    void ClickToggle(int id) { Click(menu.optionsMenu, menu.optionsMenu.FindToggle(id)); }
    MenuText& Field(int id) { return *menu.optionsMenu.FindText(id); }
    /// Ids of the focused and of the red fields.
    std::string Marks()
    {
        std::string marks;
        for (int id = FIELD_KEY_FIRST; id <= FIELD_KEY_LAST; ++id) {
            marks += Field(id).focused ? " " + std::to_string(id) : "";
            marks += Field(id).colour == TEXT_RED ? " red" + std::to_string(id) : "";
        }
        return marks;
    }
};
}

TEST_F(OptionsPageTest, CapturesKeysThatTakeEffectWithOk)
{
    Open();
    for (const int key : { int{ '1' }, VK_F1, VK_TAB, VK_MULTIPLY, VK_NUMPAD0 - 1, VK_SHIFT }) {
        Press(key);
        EXPECT_EQ(Marks(), " 16") << "cannot be bound: " << key;
    }
    const std::string typed = "WSADIKJL";
    for (size_t i = 0; i < typed.size(); ++i) {
        EXPECT_TRUE(Field(16 + static_cast<int>(i)).focused) << i;
        Press(typed[i]);
    }
    EXPECT_EQ(Marks(), " 16");
    EXPECT_EQ(menu.keys, DefaultKeys()) << "nothing takes effect before OK";
    Press(VK_RETURN);
    EXPECT_EQ(OpenPages(), "m");
    EXPECT_TRUE(std::equal(typed.begin(), typed.end(), menu.keys.begin()));
    EXPECT_NE(Stored().find("76"), std::string::npos) << "player 2's right key";
}

TEST_F(OptionsPageTest, EqualKeysTurnRedAndBlockOk)
{
    Open();
    for (const int key : { int{ 'Q' }, int{ 'E' }, VK_UP, VK_UP })
        Press(key);
    EXPECT_EQ(Marks(), " red18 red19 20");
    Press(VK_RETURN);
    Press(VK_SPACE);
    EXPECT_EQ(OpenPages(), "o");
    for (const int key : { int{ 'I' }, int{ 'K' }, int{ 'J' }, int{ 'E' } }) // the last one is player 1's down key
        Press(key);
    EXPECT_EQ(Marks(), " 16 red17 red18 red19 red23");
    Press(VK_ESCAPE);
    EXPECT_EQ(OpenPages(), "m");
    EXPECT_EQ(menu.keys, DefaultKeys());
    EXPECT_EQ(Stored(), "");
    Open();
    Press(0); // the refilled page has no conflict
    Press(VK_RETURN);
    EXPECT_EQ(OpenPages(), "m");
}

TEST_F(OptionsPageTest, DefaultTakesEffectOnlyWithOk)
{
    menu.keys[0] = 'Q';
    SoundSetMute(1);
    Send(WM_SYSKEYUP, VK_RETURN);
    for (const int key : { VK_ESCAPE, VK_RETURN }) {
        const bool applied = key == VK_RETURN;
        Open();
        EXPECT_TRUE(menu.optionsMenu.FindToggle(TOGGLE_FULL_SCREEN)->checked);
        EXPECT_TRUE(menu.optionsMenu.FindToggle(TOGGLE_SOUND_OFF)->checked);
        EXPECT_EQ(Field(16).key, 'Q');
        Click(menu.optionsMenu, menu.optionsMenu.FindButton(BUTTON_OPTIONS_DEFAULT));
        EXPECT_EQ(Field(16).key, VK_UP);
        Press(key);
        EXPECT_EQ(menu.keys[0], applied ? 38U : uint32_t{ 'Q' });
        EXPECT_EQ(SoundGetMute(), applied ? 0 : 1);
        EXPECT_EQ(isWindowed, applied);
    }
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

TEST_F(OptionsPageTest, FollowsASwitchOfTheDisplayThatOthersMake)
{
    for (const int key : { VK_RETURN, VK_ESCAPE }) {
        Open();
        ClickToggle(isWindowed ? TOGGLE_FULL_SCREEN : TOGGLE_WINDOWED);
        for (int switches = 0; switches < 3; ++switches) {
            ApplyDisplayMode(!isWindowed);
            Press(0);
            EXPECT_EQ(menu.optionsMenu.FindToggle(TOGGLE_WINDOWED)->checked, isWindowed);
            EXPECT_EQ(menu.optionsMenu.FindToggle(TOGGLE_FULL_SCREEN)->checked, !isWindowed);
        }
        const std::string log = Log();
        Press(key);
        EXPECT_EQ(Log(), log) << "the mode stays with OK and with Cancel";
    }
}
