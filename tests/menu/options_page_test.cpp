#include "app/globals.h"
#include "doubles/fake_platform.h"
#include "gfx/display.h"
#include "menu/menu_fixture.h"
#include "menu/menu_items.h"
#include "sound/sound.h"

namespace
{
class OptionsPageTest : public MenuFixture
{
protected:
    void Open() { Click(menu.mainMenu, menu.mainMenu.FindButton(BUTTON_OPTIONS)); }
    void ClickToggle(int id) { Click(menu.optionsMenu, menu.optionsMenu.FindToggle(id)); }
    void ClickDefault() { Click(menu.optionsMenu, menu.optionsMenu.FindButton(BUTTON_OPTIONS_DEFAULT)); }
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
    bool MusicPlays() const { return fake.soundBuffers[SOUND_MUSIC]->playing; }
};
}

TEST_F(OptionsPageTest, ShowsWhatIsInForce)
{
    for (const bool changed : { false, true }) {
        if (changed) {
            isWindowed = false;
            SoundSetMute(1);
            menu.keys[3] = 'Q';
        }
        Field(20).focused = true; // left from the last time
        Open();
        EXPECT_EQ(menu.optionsMenu.FindToggle(TOGGLE_WINDOWED)->checked, !changed);
        EXPECT_EQ(menu.optionsMenu.FindToggle(TOGGLE_FULL_SCREEN)->checked, changed);
        EXPECT_EQ(menu.optionsMenu.FindToggle(TOGGLE_SOUND_ON)->checked, !changed);
        EXPECT_EQ(menu.optionsMenu.FindToggle(TOGGLE_SOUND_OFF)->checked, changed);
        EXPECT_EQ(Field(19).key, changed ? 'Q' : VK_RIGHT);
        EXPECT_EQ(Marks(), " 16");
        Press(VK_ESCAPE);
    }
}

TEST_F(OptionsPageTest, CapturesTheKeysInOrder)
{
    Open();
    const std::string typed = "WSADIKJL";
    for (size_t i = 0; i < typed.size(); ++i) {
        EXPECT_TRUE(Field(16 + static_cast<int>(i)).focused) << i;
        Press(typed[i]);
    }
    EXPECT_EQ(Marks(), " 16");
    EXPECT_EQ(menu.keys, DefaultKeys()) << "nothing takes effect before OK";
    Press(VK_RETURN);
    EXPECT_EQ(OpenPages(), "main");
    for (size_t i = 0; i < typed.size(); ++i)
        EXPECT_EQ(menu.keys[i], static_cast<uint32_t>(typed[i])) << i;
    EXPECT_EQ(StoredNumber("Right 2"), 76U);
}

TEST_F(OptionsPageTest, IgnoresKeysThatCannotBeBound)
{
    Open();
    for (const int key : { int{ '1' }, VK_F1, VK_TAB, VK_MULTIPLY, VK_NUMPAD0 - 1, VK_SHIFT }) {
        Press(key);
        EXPECT_EQ(Field(16).key, VK_UP) << key;
        EXPECT_EQ(Marks(), " 16") << key;
        EXPECT_EQ(OpenPages(), "options") << key;
    }
}

TEST_F(OptionsPageTest, EqualKeysTurnRedAndBlockOk)
{
    Open();
    for (const int key : { int{ 'Q' }, int{ 'E' }, VK_UP, VK_UP })
        Press(key);
    EXPECT_EQ(Marks(), " red18 red19 20");
    Press(VK_RETURN);
    Press(VK_SPACE);
    EXPECT_EQ(OpenPages(), "options");
    EXPECT_FALSE(StoredNumber("Windowed"));
    for (const int key : { int{ 'I' }, int{ 'K' }, int{ 'J' }, int{ 'E' } }) // the last one is player 1's down key
        Press(key);
    EXPECT_EQ(Marks(), " 16 red17 red18 red19 red23");
    Press(VK_ESCAPE);
    EXPECT_EQ(OpenPages(), "main");
    EXPECT_EQ(menu.keys, DefaultKeys());

    Open();
    Frame(); // the refilled page has no conflict
    Press(VK_RETURN);
    EXPECT_EQ(OpenPages(), "main");
}

TEST_F(OptionsPageTest, DefaultTakesEffectOnlyWithOk)
{
    menu.keys[0] = 'Q';
    SoundSetMute(1);
    isWindowed = false;
    ASSERT_TRUE(DisplaySetMode(gameWindow, 640, 480, false));
    for (const int key : { VK_ESCAPE, VK_RETURN }) {
        const bool applied = key == VK_RETURN;
        Open();
        ClickDefault();
        EXPECT_EQ(Field(16).key, VK_UP);
        Press(key);
        EXPECT_EQ(menu.keys[0], applied ? 38U : uint32_t{ 'Q' });
        EXPECT_EQ(SoundGetMute(), applied ? 0 : 1);
        EXPECT_EQ(isWindowed, applied);
        EXPECT_EQ(fake.fullScreen, !applied);
    }
}

TEST_F(OptionsPageTest, SoundOffStopsTheMusicAtOnceAndSoundOnStartsIt)
{
    Open();
    ClickToggle(TOGGLE_SOUND_OFF);
    EXPECT_TRUE(MusicPlays());
    Press(VK_RETURN);
    EXPECT_FALSE(MusicPlays());
    EXPECT_EQ(StoredNumber("No Sound"), 1U);
    Open();
    ClickToggle(TOGGLE_SOUND_ON);
    Press(VK_RETURN);
    EXPECT_TRUE(MusicPlays());
    EXPECT_EQ(StoredNumber("No Sound"), 0U);
}

TEST_F(OptionsPageTest, AFailedSwitchKeepsAndSavesTheModeInForce)
{
    for (const bool fails : { true, false }) {
        if (fails)
            fake.Fail("DirectDrawCreate", 1);
        Open();
        ClickToggle(TOGGLE_FULL_SCREEN);
        const std::string log = Log();
        Press(VK_RETURN);
        EXPECT_EQ(Log().substr(log.size()), "Windowed -> Full Screen\n");
        EXPECT_EQ(isWindowed, fails);
        EXPECT_EQ(fake.fullScreen, !fails);
        EXPECT_EQ(StoredNumber("Windowed"), fails ? 1U : 0U);
    }
}

TEST_F(OptionsPageTest, FollowsASwitchOfTheDisplayThatOthersMake)
{
    for (const int key : { VK_RETURN, VK_ESCAPE }) {
        Open();
        ClickToggle(isWindowed ? TOGGLE_FULL_SCREEN : TOGGLE_WINDOWED);
        for (int switches = 0; switches < 3; ++switches) {
            ApplyDisplayMode(!isWindowed);
            Frame();
            EXPECT_EQ(menu.optionsMenu.FindToggle(TOGGLE_WINDOWED)->checked, isWindowed);
            EXPECT_EQ(menu.optionsMenu.FindToggle(TOGGLE_FULL_SCREEN)->checked, !isWindowed);
        }
        const std::string log = Log();
        Press(key);
        EXPECT_EQ(Log(), log) << "the mode stays with OK and with Cancel";
    }
}
