#include "app/globals.h"
#include "doubles/fake_platform.h"
#include "gfx/display.h"
#include "menu/menu_fixture.h"
#include "sound/sound.h"

#include <cstring>

namespace
{
class SettingsTest : public MenuFixture
{
};
}

TEST_F(SettingsTest, AFirstRunHasTheDefaultsAndWritesThemAll)
{
    EXPECT_EQ(Log().find("->"), std::string::npos) << "no switch of the display";
    EXPECT_FALSE(StoredNumber("Windowed"));
    EXPECT_EQ(menu.SettingsSave(), 0);

    const struct {
        const char* name;
        uint32_t value;
    } numbers[] = { { "Windowed", 1 }, { "No Sound", 0 }, { "Up 1", 38 },   { "Down 1", 40 }, { "Left 1", 37 },
                    { "Right 1", 39 }, { "Up 2", 87 },    { "Down 2", 83 }, { "Left 2", 65 }, { "Right 2", 68 } };
    for (const auto& [name, value] : numbers)
        EXPECT_EQ(StoredNumber(name), value) << name;
    for (int place = 1; place <= RANKING_PLACES; ++place) {
        EXPECT_EQ(StoredText(("Name " + std::to_string(place)).c_str()), "") << place;
        EXPECT_EQ(StoredNumber(("Rank " + std::to_string(place)).c_str()), 0U) << place;
    }
}

TEST_F(SettingsTest, EveryRecordComesBack)
{
    const std::string names[RANKING_PLACES] = { "a long name of twenty",
                                                "Bob", // shorter than the one before it
                                                "",
                                                "\nline",
                                                "t\xE9t\xE9",
                                                "\"quoted' \\",
                                                " blanks ",
                                                std::string(NAME_BYTES - 1, 'x'),
                                                "\x01\x7F",
                                                "------" };
    for (int i = 0; i < RANKING_PLACES; ++i) {
        strcpy(menu.rankNames[i], names[i].c_str());
        menu.rankScores[i] = 2000000000 - i;
    }
    menu.rankScores[9] = -7;
    menu.keys = { 'A', 'B', 'C', 'D', 97, 98, 99, 0 };
    SoundSetMute(1);
    ASSERT_EQ(menu.SettingsSave(), 0);
    SoundSetMute(0);

    CSectionMenu other;
    EXPECT_EQ(other.SettingsLoad(), 0);
    EXPECT_EQ(other.keys, menu.keys);
    EXPECT_EQ(SoundGetMute(), 1);
    for (int i = 0; i < RANKING_PLACES; ++i) {
        EXPECT_EQ(other.rankNames[i], names[i]) << i;
        EXPECT_EQ(other.rankScores[i], menu.rankScores[i]) << i;
    }
}

TEST_F(SettingsTest, AppliesTheStoredDisplayMode)
{
    struct Case {
        uint32_t stored;
        bool fails;
        bool windowed; ///< afterwards
        const char* logged;
    };
    const Case cases[] = {
        { 1, false, true, "" },
        { 0, true, true, "Windowed -> Full Screen\n" },
        { 0, false, false, "Windowed -> Full Screen\n" },
        { 0, false, false, "" },
        { 2, false, true, "Full Screen -> Windowed\n" },
    };
    for (const Case& row : cases) {
        StoreNumber("Windowed", row.stored);
        if (row.fails)
            fake.Fail("DirectDrawCreate", 1);
        const std::string log = Log();
        EXPECT_EQ(menu.SettingsLoad(), 0);
        EXPECT_EQ(Log().substr(log.size()), row.logged) << row.stored;
        EXPECT_EQ(isWindowed, row.windowed) << row.stored;
        EXPECT_EQ(fake.fullScreen, !row.windowed) << row.stored;
    }
}

TEST_F(SettingsTest, WhatCouldNotBeReadIsNeverReplaced)
{
    UseNoSettings();
    CSectionMenu other;
    other.keys[0] = 'Q';
    EXPECT_NE(other.SettingsLoad(), 0);
    EXPECT_EQ(other.keys[0], uint32_t{ 'Q' });

    UseFreshSettings(pictures.folder); // they can be had again
    StoreNumber("Rank 1", 5000);
    EXPECT_NE(other.SettingsSave(), 0);
    EXPECT_EQ(StoredNumber("Rank 1"), 5000U);
    EXPECT_FALSE(StoredNumber("Up 1"));

    EXPECT_EQ(other.SettingsLoad(), 0);
    EXPECT_EQ(other.SettingsSave(), 0);
    EXPECT_EQ(StoredNumber("Up 1"), 38U);
}
