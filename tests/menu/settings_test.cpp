#include "menu/section_menu.h"
#include "support/settings_store.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{
struct SettingsTest : testing::Test {
    const SettingsFolder folder;
    CSectionMenu menu;
};
}

TEST_F(SettingsTest, TakesValuesAsBytesWhateverTheirType)
{
    const struct {
        std::string line;
        uint32_t firstKey;
        const char* firstName;
    } cases[] = {
        { "", 38, "" },
        { "\"Up 1\" = ''", 38, "" },
        { "\"Up 1\" = 'A'", 'A', "" }, // one byte of the default's four
        { "\"Up 1\" = 'ABCD'", 0x44434241, "" },
        { "\"Up 1\" = 'ABCDE'", 38, "" },
        { "\"Name 1\" = 16705", 38, "AA" },
        { "\"Name 1\" = 'ab\xC3\xA9'", 38, "ab\xC3\xA9" },
        { "\"Name 1\" = { type = 1, hex = '61620063' }", 38, "ab" },
        { "\"Name 1\" = '" + std::string(256, 'x') + "'", 38, "" },
    };
    for (const auto& row : cases) {
        folder.Write(SETTINGS_FILE, row.line);
        menu.keys[0] = 1;
        strcpy(menu.rankNames[0], "before");
        EXPECT_EQ(menu.SettingsLoad(), 0) << row.line;
        EXPECT_EQ(menu.keys[0], row.firstKey) << row.line;
        EXPECT_STREQ(menu.rankNames[0], row.firstName) << row.line;
    }
}

TEST_F(SettingsTest, WhatCouldNotBeReadIsNeverReplaced)
{
    UseNoSettings();
    menu.keys[0] = 'Q';
    EXPECT_NE(menu.SettingsLoad(), 0);
    EXPECT_EQ(menu.keys[0], uint32_t{ 'Q' });

    UseFreshSettings(folder); // they can be had again
    folder.Write(SETTINGS_FILE, "\"Rank 1\" = 5000");
    EXPECT_NE(menu.SettingsSave(), 0);
    EXPECT_EQ(folder.Read(SETTINGS_FILE), "\"Rank 1\" = 5000");
    EXPECT_EQ(menu.SettingsLoad(), 0);
    EXPECT_EQ(menu.SettingsSave(), 0);
    EXPECT_NE(folder.Read(SETTINGS_FILE).find("5000"), std::string::npos);
}
