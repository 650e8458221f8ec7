#include "app/globals.h"
#include "gfx/display.h"
#include "menu/menu_fixture.h"
#include "platform/fake_platform.h"
#include "sound/sound.h"

#include <cstdlib>
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
    EXPECT_EQ(SettingsFile(), "");
    EXPECT_EQ(menu.SettingsSave(), 0);

    std::string expected = "\"Down 1\" = 40\n\"Down 2\" = 83\n\"Left 1\" = 37\n\"Left 2\" = 65\n";
    const char* const places[] = { "1", "10", "2", "3", "4", "5", "6", "7", "8", "9" };
    for (const std::string place : places)
        expected += "\"Name " + place + "\" = \"\"\n";
    expected += "\"No Sound\" = 0\n";
    for (const std::string place : places)
        expected += "\"Rank " + place + "\" = 0\n";
    expected += "\"Right 1\" = 39\n\"Right 2\" = 68\n\"Up 1\" = 38\n\"Up 2\" = 87\nWindowed = 1\n";
    EXPECT_EQ(SettingsFile(), expected);
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

TEST_F(SettingsTest, TakesValuesAsBytesWhateverTheirType)
{
    struct Case {
        std::string line;
        uint32_t firstKey;
        const char* firstName;
        int32_t firstScore;
    };
    const Case cases[] = {
        { "\"Up 1\" = 'A'", 'A', "", 0 }, // one byte of the default's four
        { "\"Up 1\" = 'ABCD'", 0x44434241, "", 0 },
        { "\"Up 1\" = 'ABCDE'", 38, "", 0 },
        { "\"Up 1\" = 3.5", 38, "", 0 },
        { "\"Name 1\" = 16705", 38, "AA", 0 },
        { "\"Name 1\" = 'ab\xC3\xA9'", 38, "ab\xC3\xA9", 0 },
        { "\"Name 1\" = { type = 1, hex = '61620063' }", 38, "ab", 0 },
        { "\"Name 1\" = '" + std::string(256, 'x') + "'", 38, "", 0 },
        { "\"Name 1\" = '" + std::string(300, 'x') + "'", 38, "", 0 },
        { "\"Rank 1\" = 4294967295", 38, "", -1 },
        { "\"Rank 1\" = -5", 38, "", 0 },
        { "damaged = = ", 38, "", 0 },
    };
    for (const Case& row : cases) {
        pictures.folder.Write(SETTINGS_FILE, row.line);
        menu.keys[0] = 1;
        strcpy(menu.rankNames[0], "before");
        menu.rankScores[0] = 1;
        EXPECT_EQ(menu.SettingsLoad(), 0) << row.line;
        EXPECT_EQ(menu.keys[0], row.firstKey) << row.line;
        EXPECT_STREQ(menu.rankNames[0], row.firstName) << row.line;
        EXPECT_EQ(menu.rankScores[0], row.firstScore) << row.line;
    }
}

TEST_F(SettingsTest, AppliesTheStoredDisplayMode)
{
    struct Case {
        const char* line;
        bool fails;
        bool windowed; ///< afterwards
        const char* logged;
    };
    const Case cases[] = {
        { "Windowed = 1", false, true, "" },
        { "Windowed = 0", true, true, "Windowed -> Full Screen\n" },
        { "Windowed = 0", false, false, "Windowed -> Full Screen\n" },
        { "Windowed = 0", false, false, "" },
        { "Windowed = 2", false, true, "Full Screen -> Windowed\n" },
    };
    for (const Case& row : cases) {
        pictures.folder.Write(SETTINGS_FILE, row.line);
        if (row.fails)
            fake.Fail("DirectDrawCreate", 1);
        const std::string log = Log();
        EXPECT_EQ(menu.SettingsLoad(), 0);
        EXPECT_EQ(Log().substr(log.size()), row.logged) << row.line;
        EXPECT_EQ(isWindowed, row.windowed) << row.line;
        EXPECT_EQ(fake.fullScreen, !row.windowed) << row.line;
    }
}

TEST_F(SettingsTest, WhatCouldNotBeReadIsNeverReplaced)
{
    constexpr char STORED[] = "\"Rank 1\" = 5000\n";
    pictures.folder.Write(SETTINGS_FILE, STORED);
    const std::string store = getenv("XDG_CONFIG_HOME");
    setenv("XDG_CONFIG_HOME", "/dev/null", 1);
    CSectionMenu other;
    other.keys[0] = 'Q';
    EXPECT_NE(other.SettingsLoad(), 0);
    EXPECT_EQ(other.keys[0], uint32_t{ 'Q' });
    setenv("XDG_CONFIG_HOME", store.c_str(), 1); // it can be had again
    EXPECT_NE(other.SettingsSave(), 0);
    EXPECT_EQ(SettingsFile(), STORED);
    EXPECT_EQ(other.SettingsLoad(), 0);
    EXPECT_EQ(other.SettingsSave(), 0);
    EXPECT_NE(SettingsFile(), STORED);
}
